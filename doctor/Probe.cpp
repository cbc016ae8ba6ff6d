#include "doctor/Probe.h"

#include <windows.h>

#include "base/ComApartment.h"
#include "base/Owned.h"
#include "base/Paths.h"
#include "base/Text.h"

namespace doctor {

namespace {

constexpr DWORD kAnswered = 77; // no crash ends with this

std::wstring QuotedArgument(const std::wstring& argument) {
    std::wstring quoted = L" \"" + argument;
    // A backslash before the closing quote would take it for a part of the argument.
    if (!argument.empty() && argument.back() == L'\\') quoted += L'\\';
    return quoted + L"\"";
}

std::vector<std::wstring> SplitLines(const std::string& bytes) {
    std::wstring text;
    base::FromUtf8(bytes, text);
    std::vector<std::wstring> lines;
    for (size_t start = 0, end; (end = text.find(L"\r\n", start)) != std::wstring::npos; start = end + 2)
        lines.push_back(text.substr(start, end - start));
    return lines;
}

std::string ReadAll(HANDLE pipe) {
    std::string bytes;
    char buffer[512];
    DWORD read = 0, left = 0;
    while (::PeekNamedPipe(pipe, nullptr, 0, nullptr, &left, nullptr) && left > 0 &&
           ::ReadFile(pipe, buffer, sizeof buffer, &read, nullptr))
        bytes.append(buffer, read);
    return bytes;
}

/// Both ends of a pipe whose writing end a child inherits.
struct Pipe {
    base::KernelHandle reader, writer;

    Pipe() {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        HANDLE ends[2] = {};
        if (!::CreatePipe(&ends[0], &ends[1], &inherited, 0x10000)) return;
        reader.reset(ends[0]);
        writer.reset(ends[1]);
        ::SetHandleInformation(reader.get(), HANDLE_FLAG_INHERIT, 0);
    }
};

} // namespace

ProbeResult RunProbe(const std::vector<std::wstring>& arguments, const Options& options) {
    const std::wstring program = base::ModulePath(nullptr);
    std::wstring command = L"\"" + program + L"\" --probe";
    for (const std::wstring& argument : arguments)
        command += QuotedArgument(argument);
    const Pipe pipe;
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = pipe.writer.get();
    PROCESS_INFORMATION started = {};
    ProbeResult result;
    // The host's folder is where its program would look for DLLs.
    if (!::CreateProcessW(program.c_str(), &command[0], nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                          base::FolderExists(options.host) ? options.host.c_str() : nullptr, &start,
                          &started)) {
        result.startError = ErrorText(::GetLastError());
        return result;
    }
    const base::KernelHandle process(started.hProcess), thread(started.hThread);
    if (::WaitForSingleObject(process.get(), static_cast<DWORD>(options.timeoutSeconds + 7) * 1000) !=
        WAIT_OBJECT_0)
        ::TerminateProcess(process.get(), 1);
    DWORD exitCode = 0;
    result.ended = ::GetExitCodeProcess(process.get(), &exitCode) && exitCode == kAnswered;
    result.lines = SplitLines(ReadAll(pipe.reader.get()));
    return result;
}

void ReportBrokenProbe(const ProbeResult& probe, const std::wstring& subject, const std::wstring& detail,
                       Report& report) {
    if (probe.startError.empty()) {
        report.Add(L"probe.crashed", subject, detail);
    } else {
        report.Add(L"probe.not-started", subject, probe.startError);
    }
}

int AnswerProbe(const std::vector<std::wstring>& arguments) {
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    struct Trial {
        const wchar_t* name;
        void (*run)(const std::vector<std::wstring>& arguments);
        size_t arguments; // at least
    };
    constexpr Trial kTrials[] = {{L"load", ProbeLoad, 1},
                                 {L"server", ProbeServer, 1},
                                 {L"login", ProbeLogin, 4},
                                 {L"model", ProbeModel, 2}};
    const std::vector<std::wstring> further(arguments.begin() + !arguments.empty(), arguments.end());
    const base::ComApartment apartment;
    for (const Trial& trial : kTrials) {
        if (arguments.empty() || arguments[0] != trial.name || further.size() < trial.arguments) continue;
        trial.run(further);
        // Destructors of foreign DLLs are no part of the trial.
        ::TerminateProcess(::GetCurrentProcess(), kAnswered);
    }
    return kExitUsage;
}

} // namespace doctor
