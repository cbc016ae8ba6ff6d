// Calls of the signing automation server.
#include "sign/SignOpt.h"

#include <iterator>
#include <vector>

#include "module/Guarded.h"

using varnoke::Guarded;

static_assert(sizeof(_variant_t) == sizeof(VARIANT), "owned arguments go to the server as they lie");

namespace {

bool HasText(const wchar_t* text) {
    return text != nullptr && *text != L'\0';
}

/// The status that a method returned: its 32-bit integer, whatever type the server chose for it; 0 when it is
/// none. An object is not asked for a value.
long StatusOf(VARIANT& value) {
    if (value.vt == VT_UI4 || value.vt == VT_UINT) {
        return static_cast<long>(value.ulVal);
    }
    _variant_t integer;
    const HRESULT hr = ::VariantChangeType(&integer, &value, VARIANT_NOVALUEPROP, VT_I4);
    return SUCCEEDED(hr) ? integer.lVal : 0;
}

} // namespace

CSignOpt::CSignOpt() = default;

CSignOpt::~CSignOpt() = default;

long CSignOpt::Initialize(CWnd* parent) {
    return Guarded(0L, [&]() -> long {
        m_pParentWnd = parent;
        if (m_config.Initialize(parent) == 0) {
            return 0;
        }
        const CString progID = m_config.GetProgID();
        return progID.IsEmpty() ? 0 : CreateFromProgID(progID);
    });
}

long CSignOpt::Uninitialize() {
    return 1;
}

long CSignOpt::Login(wchar_t* user, wchar_t* password, wchar_t* server) {
    return Guarded(0L, [&]() -> long {
        if (!HasText(user) || password == nullptr || !HasText(server)) {
            return 0;
        }
        const CString address = m_config.GetServerIP();
        m_strSignUser = m_config.GetSignServer(user);
        m_strServerAddress = address.IsEmpty() ? CString(server) : address;
        m_strServerPort = m_config.GetServerPort();
        m_strPLMUser = user;
        m_strPassword = password;
        return CallServer(m_config.GetDynDisp(L"Login"),
                          {m_strSignUser, m_strPassword, m_strServerAddress, m_strServerPort});
    });
}

long CSignOpt::Logout() {
    return Guarded(0L, [&] {
        for (CString* text :
             {&m_strPLMUser, &m_strSignUser, &m_strPassword, &m_strServerAddress, &m_strServerPort}) {
            text->Empty();
        }
        return 1L;
    });
}

long CSignOpt::Test(wchar_t* text) {
    return Guarded(0L, [&] { return CallServer(L"Test", {text}); });
}

long CSignOpt::Sign(IDispatch* document, SSignInfo* info) {
    return SignForBackSign(document, info);
}

long CSignOpt::SignForBackSign(IDispatch* document, SSignInfo* info) {
    return Guarded(0L, [&]() -> long {
        if (document == nullptr || info == nullptr) {
            return 0;
        }
        m_config.GetDelPre(); // reserved: read, without a meaning yet
        const SSignInfo& i = *info;
        return CallServer(
            m_config.GetDynDisp(L"Sign"),
            {i.m_strFirstText, i.m_strSecondText, i.m_strDateText, i.m_strUserName, i.m_strRole},
            {i.m_dA, i.m_dB - i.m_dD, i.m_dE, i.m_dF - i.m_dH, i.m_dC, i.m_dD, i.m_dG, i.m_dH});
    });
}

long CSignOpt::DeleteSignForBackSign(IDispatch* document, SSignInfo* info) {
    return Guarded(0L, [&]() -> long {
        if (document == nullptr || info == nullptr) {
            return 0;
        }
        return CallServer(m_config.GetDynDisp(L"SignatureDelete"),
                          {info->m_strFirstText, info->m_strUserName, info->m_strRole});
    });
}

long CSignOpt::DeleteAllSignForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] { return CallForDocument(L"DeleteAllSign", document, text); });
}

long CSignOpt::SignatureValidateForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] { return CallForDocument(L"SignatureValidate", document, text); });
}

long CSignOpt::ClearInvalidSignForBackSign(IDispatch* document, wchar_t* text) {
    return Guarded(0L, [&] { return CallForDocument(L"SignatureInvalidDelete", document, text); });
}

long CSignOpt::ClearInvalidSign(IDispatch* document, wchar_t* text) {
    return document != nullptr && HasText(text) ? 1 : 0;
}

long CSignOpt::CancelSign(IDispatch* document, wchar_t* first, wchar_t* second, wchar_t* third) {
    return Guarded(0L, [&]() -> long {
        if (document == nullptr || !HasText(first) || !HasText(second) || !HasText(third)) {
            return 0;
        }
        // An installation may rename this operation, but the server knows it as the deletion of a signature.
        if (m_config.GetDynDisp(L"CancelSign").IsEmpty()) {
            return 0;
        }
        return CallServer(L"SignatureDelete", {first, second, third});
    });
}

long CSignOpt::ExistSignature(IDispatch* document, wchar_t* first, wchar_t* /*second*/) {
    return document != nullptr && HasText(first) ? 1 : 0;
}

long CSignOpt::HasInvalidSign(IDispatch* document, long* invalid) {
    if (document == nullptr || invalid == nullptr) {
        return 0;
    }
    *invalid = 0;
    return 1;
}

long CSignOpt::CallServer(const CString& method, std::initializer_list<const wchar_t*> texts,
                          std::initializer_list<double> numbers) {
    if (method.IsEmpty() || SelectMethod(method) == 0) {
        return 0;
    }
    std::vector<_variant_t> arguments; // the method's last parameter comes first
    arguments.reserve(texts.size() + numbers.size());
    for (auto number = std::rbegin(numbers); number != std::rend(numbers); ++number) {
        arguments.emplace_back(*number);
    }
    for (auto text = std::rbegin(texts); text != std::rend(texts); ++text) {
        arguments.emplace_back(*text);
    }
    _variant_t result;
    if (Invoke(arguments.data(), static_cast<unsigned>(arguments.size()), &result) == 0) {
        return 0;
    }
    return StatusOf(result);
}

long CSignOpt::CallForDocument(const wchar_t* key, IDispatch* document, const wchar_t* text) {
    if (document == nullptr || !HasText(text)) {
        return 0;
    }
    return CallServer(m_config.GetDynDisp(key), {text});
}
