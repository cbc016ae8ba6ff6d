// Calls of the signing automation server.
#include "varnoke/SignOpt.h"

#include "module/Guarded.h"
#include "module/Trace.h"
#include "neighbours/signserver.h"

using varnoke::Cause;
using varnoke::Fail;
using varnoke::Guarded;
using varnoke::IsGiven;

namespace {

bool IsGivenPointer(const void* pointer, const wchar_t* name) {
    return pointer || Fail(Cause::ArgumentMissing, name);
}

bool AreGiven(IDispatch* document, const wchar_t* text, const wchar_t* name) {
    return IsGivenPointer(document, L"document") && IsGiven(text, name);
}

bool AreGiven(IDispatch* document, const SSignInfo* info) {
    return IsGivenPointer(document, L"document") && IsGivenPointer(info, L"info");
}

} // namespace

CSignOpt::CSignOpt() = default;

CSignOpt::~CSignOpt() = default;

long CSignOpt::Initialize(CWnd* parent) {
    const auto initialize = [&]() -> long {
        varnoke::ConfigureTrace();
        m_parentWnd = parent;
        return m_config.Initialize(parent) ? CreateFromProgID(m_config.GetProgID()) : 0;
    };
    return Guarded(0L, initialize, "CSignOpt::Initialize");
}

long CSignOpt::Uninitialize() {
    return Guarded(
        0L, [] { return 1L; }, "CSignOpt::Uninitialize");
}

long CSignOpt::Login(wchar_t* plmUser, wchar_t* password, wchar_t* serverAddress) {
    return Guarded(0L, [&]() -> long {
        if (!IsGiven(plmUser, L"plmUser") || !IsGivenPointer(password, L"password") ||
            !IsGiven(serverAddress, L"serverAddress"))
            return 0;
        const CString address = m_config.GetServerIP();
        m_signUser = m_config.GetSignServer(plmUser);
        m_serverAddress = address.IsEmpty() ? CString(serverAddress) : address;
        m_serverPort = m_config.GetServerPort();
        m_plmUser = plmUser;
        m_password = password;
        return Call(m_config.GetDynDisp(signserver::kLogin),
                    {m_signUser, m_password, m_serverAddress, m_serverPort});
    });
}

long CSignOpt::Logout() {
    return Guarded(0L, [&] {
        for (CString* text : {&m_plmUser, &m_signUser, &m_password, &m_serverAddress, &m_serverPort}) {
            text->Empty();
        }
        return 1L;
    });
}

long CSignOpt::Test(wchar_t* text) {
    return Guarded(0L, [&] { return Call(L"Test", {text}); });
}

long CSignOpt::Sign(IDispatch* document, SSignInfo* info) {
    return SignForBackSign(document, info);
}

long CSignOpt::SignForBackSign(IDispatch* document, SSignInfo* info) {
    return Guarded(0L, [&]() -> long {
        if (!AreGiven(document, info)) return 0;
        m_config.GetDelPre(); // reserved: read, without a meaning yet
        const SSignInfo& i = *info;
        return Call(m_config.GetDynDisp(signserver::kSign),
                    {i.m_strFirstText, i.m_strSecondText, i.m_strDateText, i.m_strUserName, i.m_strRole},
                    {i.m_dA, i.m_dB - i.m_dD, i.m_dE, i.m_dF - i.m_dH, i.m_dC, i.m_dD, i.m_dG, i.m_dH});
    });
}

long CSignOpt::DeleteSignForBackSign(IDispatch* document, SSignInfo* info) {
    return Guarded(0L, [&]() -> long {
        if (!AreGiven(document, info)) return 0;
        return Call(m_config.GetDynDisp(signserver::kSignatureDelete),
                    {info->m_strFirstText, info->m_strUserName, info->m_strRole});
    });
}

long CSignOpt::DeleteAllSignForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] {
        return AreGiven(document, text, L"text")
                   ? Call(m_config.GetDynDisp(signserver::kDeleteAllSign), {text})
                   : 0L;
    });
}

long CSignOpt::SignatureValidateForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] {
        return AreGiven(document, text, L"text")
                   ? Call(m_config.GetDynDisp(signserver::kSignatureValidate), {text})
                   : 0L;
    });
}

long CSignOpt::ClearInvalidSignForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] {
        return AreGiven(document, text, L"text")
                   ? Call(m_config.GetDynDisp(signserver::kSignatureInvalidDelete), {text})
                   : 0L;
    });
}

long CSignOpt::ClearInvalidSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] { return AreGiven(document, text, L"text"); });
}

long CSignOpt::CancelSign(IDispatch* document, wchar_t* firstText, wchar_t* userName, wchar_t* role) {
    return Guarded(0L, [&]() -> long {
        if (!AreGiven(document, firstText, L"firstText") || !IsGiven(userName, L"userName") ||
            !IsGiven(role, L"role"))
            return 0;
        // The configured name only has to be there: what is called is always the deletion of a signature.
        if (m_config.GetDynDisp(L"CancelSign").IsEmpty()) return 0;
        return Call(signserver::kSignatureDelete, {firstText, userName, role});
    });
}

long CSignOpt::ExistSignature(IDispatch* document, wchar_t* firstText, wchar_t* /*userName*/) {
    return Guarded(0L, [&] { return AreGiven(document, firstText, L"firstText"); });
}

long CSignOpt::HasInvalidSign(IDispatch* document, long* invalidCount) {
    return Guarded(0L, [&]() -> long {
        if (!IsGivenPointer(document, L"document") || !IsGivenPointer(invalidCount, L"invalidCount"))
            return 0;
        *invalidCount = 0;
        return 1;
    });
}
