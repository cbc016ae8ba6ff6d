// CString by value into and out of the library, whose string manager is another one than this program's, and
// exceptions that must not come out.
#include <afxwin.h>
#include <malloc.h>
#include "plm/PLMInteract.h"
#include "sign/SignOpt.h"
#include "tests/abi/Checks.h"
#include "tests/abi/TextFiles.h"

namespace {

long ReferencesTo(const CString& text) {
    return reinterpret_cast<const ATL::CStringData*>(text.GetString())[-1].nRefs;
}

void ByValue(CPLMInteract& plm) {
    const CString path = checks::WorkFolder() + L"\\object.xml";
    checks::WriteText(
        path,
        u8"<root><objs><type><obj><pro name='LOCATION' value='签名/王工.dwg'/></obj></type></objs></root>");
    const CString name = L"LOCATION";
    CString value = plm.GetProValue(path, name);
    CHECK(value == L"签名/王工.dwg");
    // The callee destroys its arguments: exactly once.
    CHECK(ReferencesTo(path) == 1 && ReferencesTo(name) == 1);

    // The result keeps the library's memory; strings of this program take copies.
    CHECK(value.GetManager() != AfxGetStringManager());
    CString own = L"own";
    own = value;
    CHECK(own.GetManager() == AfxGetStringManager() && ReferencesTo(value) == 1);
    const CString sharing = value;
    CHECK(sharing.GetString() == value.GetString() && ReferencesTo(value) == 2);
    value += L" and more, so that the library's memory has to grow beyond its first size";
    CHECK(value.Find(L"first") > 0 && ReferencesTo(sharing) == 1 && own == sharing);

    CHECK(plm.GetProValue(path, L"none").IsEmpty());
    CHECK(plm.GetProValue(CString(), CString()).IsEmpty());
}

void FromTheServer(CPLMInteract& plm) {
    const CString vault = checks::WorkFolder() + L"\\vault";
    CreateDirectoryW(vault, nullptr);
    CreateDirectoryW(vault + L"\\objects", nullptr);
    SetEnvironmentVariableW(L"DURVELL_VAULT", vault);
    checks::WriteText(
        vault + L"\\objects\\USER.xml",
        "<root><objs><type id='USER'><obj><pro name='DEL' value='0'/><pro name='NAME' value='wang'/>"
        "<pro name='LOCATION' value='sign/wang.dwg'/></obj></type></objs></root>");
    wchar_t user[] = L"wang", nobody[] = L"nobody", seal[] = L"s1";
    CHECK(plm.GetRemoteFileName(user, seal) == L"sign/wang.dwg");
    CHECK(plm.GetRemoteFileName(nobody, seal).IsEmpty());
}

// An object each of whose functions throws; the functions' parameters do not matter to the caller's stack.
struct Throwing {
    static HRESULT STDMETHODCALLTYPE ThrowNumber() { throw 7; }
    static HRESULT STDMETHODCALLTYPE ThrowFrameworkException() { AfxThrowMemoryException(); }

    explicit Throwing(HRESULT(STDMETHODCALLTYPE* function)()) {
        for (auto& entry : m_functions)
            entry = function;
    }
    template <typename Interface>
    Interface* As() {
        return reinterpret_cast<Interface*>(this);
    }

    HRESULT(STDMETHODCALLTYPE** m_table)() = m_functions;
    HRESULT(STDMETHODCALLTYPE* m_functions[128])();
};

void ExceptionsStayInside(CPLMInteract& plm) {
    for (auto function : {&Throwing::ThrowNumber, &Throwing::ThrowFrameworkException}) {
        Throwing thrower(function);
        auto* login = reinterpret_cast<SLoginInfo*>(&thrower);
        bool escaped = false;
        long result = -1;
        try {
            result = plm.GetLoginInfo(thrower.As<IXMLDOMDocument>(), &login);
        } catch (...) {
            escaped = true;
        }
        CHECK(!escaped && result == 0 && login == nullptr);
    }
}

// The memory comes from this program; the destructor in the table, which frees it, is the library's.
void DestructionThroughTheTable() {
    CCOMAPInvokeHelper* base = new CSignOpt;
    delete base;
    CHECK(_heapchk() == _HEAPOK);
}

} // namespace

void checks::Strings() {
    CPLMInteract plm;
    ByValue(plm);
    FromTheServer(plm);
    ExceptionsStayInside(plm);
    DestructionThroughTheTable();
}
