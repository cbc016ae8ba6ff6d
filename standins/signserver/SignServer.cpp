// The signing automation server, without a drawing.
#include "standins/signserver/SignServer.h"

#include "standins/common/FaultCounter.h"
#include "standins/common/Journal.h"
#include "standins/common/Text.h"
#include "standins/signserver/SignatureBook.h"

using namespace base;
using namespace standins;

namespace signserver {

static FaultCounter g_calls;

static bool IsFaultDue(std::wstring_view method) {
    const std::wstring plan = EnvironmentText(L"SIGNSERVER_FAULT");
    std::wstring calls;
    for (const std::wstring& fault : Split(plan, L';')) {
        const size_t colon = fault.find(L':');
        if (!base::SameText(std::wstring_view(fault).substr(0, colon), method)) continue;
        if (colon == std::wstring::npos)
            calls = L"*";
        else if (calls != L"*")
            calls.append(calls.empty() ? L"" : L"|").append(fault, colon + 1);
    }
    return g_calls.CountAndTest(plan, method, calls);
}

static std::wstring JournalFile() {
    const std::wstring file = EnvironmentText(L"SIGNSERVER_JOURNAL");
    return file.empty() ? ModuleFolder() + L"SignServer.log" : file;
}

static std::wstring JournalText(const _variant_t& argument) {
    if (argument.vt == VT_BSTR) return BstrText(argument);
    wchar_t number[32];
    _snwprintf(number, 32, L"%.10g", argument.dblVal);
    return number;
}

static std::vector<std::wstring> JournalTexts(const Arguments& arguments) {
    std::vector<std::wstring> texts;
    for (const _variant_t& argument : arguments)
        texts.push_back(JournalText(argument));
    return texts;
}

const DispatchTable& SignServer::Members() const {
    static const DispatchTable members = {
        {1, L"Login", DISPATCH_METHOD, "SSSS", &Forward<SignServer, &SignServer::Login>},
        {2, L"Sign", DISPATCH_METHOD, "SSSSSDDDDDDDD", &Forward<SignServer, &SignServer::Sign>},
        {3, L"SignatureDelete", DISPATCH_METHOD, "SSS", &Forward<SignServer, &SignServer::SignatureDelete>},
        {4, L"DeleteAllSign", DISPATCH_METHOD, "S", &Forward<SignServer, &SignServer::DeleteAllSign>},
        {5, L"SignatureInvalidDelete", DISPATCH_METHOD, "S",
         &Forward<SignServer, &SignServer::SignatureInvalidDelete>},
        {6, L"SignatureValidate", DISPATCH_METHOD, "S", &Forward<SignServer, &SignServer::SignatureValidate>},
        {7, L"Test", DISPATCH_METHOD, "S", &Forward<SignServer, &SignServer::Test>},
    };
    return members;
}

template <class Work>
HRESULT SignServer::Run(const wchar_t* method, std::vector<std::wstring> journaled, VARIANT& result,
                        Work work) {
    const long answer = !IsFaultDue(method) && work() ? 1 : 0;
    AppendJournal(JournalFile(), method, journaled, answer);
    return GiveLong(result, answer);
}

HRESULT SignServer::Login(Arguments& arguments, VARIANT& result) {
    std::vector<std::wstring> journaled = JournalTexts(arguments);
    if (!journaled[1].empty()) journaled[1] = L"***";
    m_loggedIn = false;
    return Run(L"Login", std::move(journaled), result,
               [&] { return m_loggedIn = !BstrText(arguments[0]).empty(); });
}

HRESULT SignServer::Sign(Arguments& arguments, VARIANT& result) {
    return Run(L"Sign", JournalTexts(arguments), result, [&] {
        if (m_loggedIn)
            SignatureBook::OfProcess().Place(
                {BstrText(arguments[0]), BstrText(arguments[3]), BstrText(arguments[4])});
        return m_loggedIn;
    });
}

HRESULT SignServer::SignatureDelete(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureDelete", JournalTexts(arguments), result, [&] {
        return m_loggedIn && SignatureBook::OfProcess().Remove(
                                 {BstrText(arguments[0]), BstrText(arguments[1]), BstrText(arguments[2])});
    });
}

HRESULT SignServer::DeleteAllSign(Arguments& arguments, VARIANT& result) {
    return Run(L"DeleteAllSign", JournalTexts(arguments), result, [&] {
        if (m_loggedIn) SignatureBook::OfProcess().RemoveAll(BstrText(arguments[0]));
        return m_loggedIn;
    });
}

HRESULT SignServer::SignatureInvalidDelete(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureInvalidDelete", JournalTexts(arguments), result, [&] { return m_loggedIn; });
}

HRESULT SignServer::SignatureValidate(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureValidate", JournalTexts(arguments), result,
               [&] { return m_loggedIn && SignatureBook::OfProcess().Contains(BstrText(arguments[0])); });
}

HRESULT SignServer::Test(Arguments& arguments, VARIANT& result) {
    return Run(L"Test", JournalTexts(arguments), result, [] { return true; });
}

} // namespace signserver
