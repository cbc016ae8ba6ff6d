// The signing automation server, without a drawing.
#include <algorithm>
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/Dispatch.h"
#include "base/Text.h"
#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "standins/common/FaultCounter.h"
#include "standins/common/Journal.h"
#include "standins/common/Text.h"

using namespace base;
using namespace standins;

namespace signserver {

namespace {

// Who signed in which role.
struct Signature {
    std::wstring userName;
    std::wstring role;
};

// All signatures of the process, whichever server object placed them, kept in memory in place of a drawing,
// by the sign text that names what was signed. Texts are compared without regard to case. Used on one thread,
// that of the apartment which made the server.
class SignatureBook {
public:
    // A second signature with the same three texts replaces the first.
    void Place(const std::wstring& signText, Signature signature) {
        Remove(signText, signature);
        m_signatures[Folded(signText)].push_back(std::move(signature));
    }
    // False when there is no such signature.
    bool Remove(const std::wstring& signText, const Signature& wanted) {
        const auto found = m_signatures.find(Folded(signText));
        if (found == m_signatures.end()) return false;
        std::vector<Signature>& placed = found->second;
        const auto first =
            std::remove_if(placed.begin(), placed.end(), [&wanted](const Signature& signature) {
                return SameText(signature.userName, wanted.userName) && SameText(signature.role, wanted.role);
            });
        const bool removed = first != placed.end();
        placed.erase(first, placed.end());
        if (placed.empty()) m_signatures.erase(found);
        return removed;
    }
    void RemoveAll(const std::wstring& signText) { m_signatures.erase(Folded(signText)); }
    bool Contains(const std::wstring& signText) const { return m_signatures.count(Folded(signText)) != 0; }

private:
    static std::wstring Folded(std::wstring text) {
        ::CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
        return text;
    }

    std::unordered_map<std::wstring, std::vector<Signature>> m_signatures;
};

constexpr UINT kCrashed = 0xC0000005; // as after an access violation

FaultCounter g_calls;
SignatureBook g_signatures;

bool IsFaultDue(std::wstring_view method) {
    const std::wstring plan = EnvironmentText(L"SIGNSERVER_FAULT");
    std::wstring calls;
    for (const std::wstring& fault : Split(plan, L';')) {
        const size_t colon = fault.find(L':');
        if (!SameText(std::wstring_view(fault).substr(0, colon), method)) continue;
        if (colon == std::wstring::npos)
            calls = L"*";
        else if (calls != L"*")
            calls.append(calls.empty() ? L"" : L"|").append(fault, colon + 1);
    }
    return g_calls.CountAndTest(plan, method, calls);
}

std::wstring JournalFile() {
    const std::wstring file = EnvironmentText(L"SIGNSERVER_JOURNAL");
    return file.empty() ? FileBesideModule(L"SignServer.log") : file;
}

std::wstring JournalText(const _variant_t& argument) {
    if (argument.vt == VT_BSTR) return BstrText(argument);
    wchar_t number[32];
    _snwprintf(number, 32, L"%.10g", argument.dblVal);
    return number;
}

std::vector<std::wstring> JournalTexts(const Arguments& arguments) {
    std::vector<std::wstring> texts;
    for (const _variant_t& argument : arguments)
        texts.push_back(JournalText(argument));
    return texts;
}

} // namespace

// Methods by name through IDispatch only; each returns VT_I4, 1 for success and 0 for failure:
//   Login(userName, password, serverAddress, serverPort)  fails without a user name
//   Sign(five texts, eight numbers)  places a signature: sign text, user and role are texts 1, 4 and 5
//   SignatureDelete(signText, userName, role)  fails when there is no such signature
//   DeleteAllSign(signText)  afterwards nothing carries that sign text
//   SignatureValidate(signText)  1 when a signature carries it
//   SignatureInvalidDelete(signText)  no signature here ever turns invalid, so none is deleted
//   Test(text)
// All but Login and Test fail before a successful Login of the same object.
//
// Each call is journaled to the file that SIGNSERVER_JOURNAL names, else to SignServer.log beside the DLL,
// with "***" in place of a password.
//
// SIGNSERVER_FAULT makes calls fail: "Sign:2" the second call of Sign, "Login" every Login; several with ";"
// between them. Calls are counted per process, from 1 again when the variable's text changes. "Gone:2": as if
// the server's process ended in the second call of any method. "Crash:2": the caller's process ends in it.
class SignServer final : public DispatchObject<> {
public:
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return m_gone ? RPC_E_DISCONNECTED : DispatchObject::GetIDsOfNames(iid, names, count, locale, ids);
    }

protected:
    const DispatchTable& Members() const override;

private:
    HRESULT Login(Arguments& arguments, VARIANT& result);
    HRESULT Sign(Arguments& arguments, VARIANT& result);
    HRESULT SignatureDelete(Arguments& arguments, VARIANT& result);
    HRESULT DeleteAllSign(Arguments& arguments, VARIANT& result);
    HRESULT SignatureInvalidDelete(Arguments& arguments, VARIANT& result);
    HRESULT SignatureValidate(Arguments& arguments, VARIANT& result);
    HRESULT Test(Arguments& arguments, VARIANT& result);

    // Runs a method's work unless a fault is due, journals the call and gives its answer.
    template <class Work>
    HRESULT Run(const wchar_t* method, std::vector<std::wstring> journaled, VARIANT& result, Work work);

    bool m_loggedIn = false;
    bool m_gone = false;
};

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
    if (IsFaultDue(L"Crash")) ::TerminateProcess(::GetCurrentProcess(), kCrashed);
    m_gone = m_gone || IsFaultDue(L"Gone");
    if (m_gone) return RPC_E_DISCONNECTED;
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
            g_signatures.Place(BstrText(arguments[0]), {BstrText(arguments[3]), BstrText(arguments[4])});
        return m_loggedIn;
    });
}

HRESULT SignServer::SignatureDelete(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureDelete", JournalTexts(arguments), result, [&] {
        return m_loggedIn &&
               g_signatures.Remove(BstrText(arguments[0]), {BstrText(arguments[1]), BstrText(arguments[2])});
    });
}

HRESULT SignServer::DeleteAllSign(Arguments& arguments, VARIANT& result) {
    return Run(L"DeleteAllSign", JournalTexts(arguments), result, [&] {
        if (m_loggedIn) g_signatures.RemoveAll(BstrText(arguments[0]));
        return m_loggedIn;
    });
}

HRESULT SignServer::SignatureInvalidDelete(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureInvalidDelete", JournalTexts(arguments), result, [&] { return m_loggedIn; });
}

HRESULT SignServer::SignatureValidate(Arguments& arguments, VARIANT& result) {
    return Run(L"SignatureValidate", JournalTexts(arguments), result,
               [&] { return m_loggedIn && g_signatures.Contains(BstrText(arguments[0])); });
}

HRESULT SignServer::Test(Arguments& arguments, VARIANT& result) {
    return Run(L"Test", JournalTexts(arguments), result, [] { return true; });
}

} // namespace signserver

std::vector<standins::ServedClass> standins::ServedClasses() {
    // {851F7888-998A-482B-8AFB-92E9867B0372}
    constexpr CLSID kSignServer = {
        0x851f7888, 0x998a, 0x482b, {0x8a, 0xfb, 0x92, 0xe9, 0x86, 0x7b, 0x03, 0x72}};
    return {{kSignServer, L"Brevanix.Brevanix0", L"Signing automation server", false,
             &MakeFactory<signserver::SignServer>}};
}
