#include <afxwin.h>

#include <cwchar>
#include <string>

#include "base/Owned.h"
#include "host/Commands.h"
#include "host/RunHandOver.h"

namespace host {

namespace {

/// Places of documents, separated by blanks; "s" for the signing server, "l" for the log.
constexpr wchar_t kVariable[] = L"VARNOKE_GIVEN_UP";

std::wstring Variable() {
    std::wstring text(::GetEnvironmentVariableW(kVariable, nullptr, 0), L'\0');
    if (!text.empty())
        text.resize(::GetEnvironmentVariableW(kVariable, &text[0], static_cast<DWORD>(text.size())));
    return text;
}

/// Runs this program's own command line again, with the same output, and gives its exit code.
DWORD RunAgain() {
    std::wstring line = ::GetCommandLineW();
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION started = {};
    if (!::CreateProcessW(nullptr, &line[0], nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started))
        return kExitFailed;
    const base::KernelHandle process(started.hProcess), thread(started.hThread);
    DWORD code = kExitFailed;
    ::WaitForSingleObject(process.get(), INFINITE);
    ::GetExitCodeProcess(process.get(), &code);
    return code;
}

} // namespace

GivenUp RunHandOver::Received() {
    const std::wstring text = Variable();
    GivenUp givenUp;
    for (const wchar_t* next = text.c_str(); *next;) {
        wchar_t* end = nullptr;
        const unsigned long place = wcstoul(next, &end, 10);
        if (end == next) {
            givenUp.signServer = givenUp.signServer || *next == L's';
            givenUp.log = givenUp.log || *next == L'l';
            ++next;
            continue;
        }
        givenUp.documents.push_back(place);
        next = end;
    }
    return givenUp;
}

void RunHandOver::OnExpired() {
    std::wstring text = Variable();
    const GivenUp inHand = m_run->HandOver();
    if (inHand.signServer) text += L" s";
    if (inHand.log) text += L" l";
    text += L" " + std::to_wstring(inHand.documents.front());
    ::SetEnvironmentVariableW(kVariable, text.c_str());
    m_lock.Release();
    ::TerminateProcess(::GetCurrentProcess(), RunAgain());
}

} // namespace host
