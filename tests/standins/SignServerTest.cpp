// The signing automation server: class object, arguments, the signatures it keeps.
#include <windows.h>
#include <ole2.h>
#include <comdef.h>
#include <gtest/gtest.h>

#include "tests/standins/HostedControl.h"

namespace {

class SignServer : public testing::Test {
protected:
    SignServer() { EXPECT_EQ(S_OK, m_server.CreateInstance(L"Brevanix.Brevanix0")); }

    DISPID IdOf(const wchar_t* name) {
        DISPID id = 0;
        LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
        m_server->GetIDsOfNames(IID_NULL, names, 1, GetUserDefaultLCID(), &id);
        return id;
    }
    HRESULT Invoke(DISPID id, std::vector<_variant_t> arguments, UINT* badArgument = nullptr) {
        return tests::Invoke(m_server, id, DISPATCH_METHOD, std::move(arguments), &m_result, badArgument);
    }
    long Call(const wchar_t* name, std::vector<_variant_t> arguments) {
        EXPECT_EQ(S_OK, Invoke(IdOf(name), std::move(arguments)));
        EXPECT_EQ(VT_I4, m_result.vt);
        return m_result.lVal;
    }
    // Five texts and eight numbers.
    static std::vector<_variant_t> Signature(const wchar_t* text) {
        return {text, L"t2", L"2015-07-05", L"王工", L"设计", 1.5, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.25};
    }
    long Sign(const wchar_t* text) { return Call(L"Sign", Signature(text)); }

    tests::DispatchPtr m_server;
    _variant_t m_result;
};

TEST_F(SignServer, ClassObject_CountsObjectsAndLocks) {
    const HMODULE module = GetModuleHandleW(L"SignServer.dll");
    const auto canUnload = reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
    const auto getClass = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    EXPECT_EQ(S_FALSE, canUnload());
    m_server = nullptr;
    EXPECT_EQ(S_OK, canUnload());

    CLSID clsid;
    ASSERT_EQ(S_OK, CLSIDFromProgID(L"Brevanix.Brevanix0", &clsid));
    void* none = module;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, getClass(IID_IUnknown, IID_IClassFactory, &none));
    EXPECT_EQ(nullptr, none);
    EXPECT_EQ(E_POINTER, getClass(clsid, IID_IClassFactory, nullptr));
    IClassFactory* factory = nullptr;
    ASSERT_EQ(S_OK, getClass(clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
    none = module;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(factory, IID_IUnknown, &none));
    EXPECT_EQ(nullptr, none);
    EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IClassFactory, &none));
    factory->LockServer(TRUE);
    EXPECT_EQ(0u, factory->Release());
    EXPECT_EQ(S_FALSE, canUnload());
    ASSERT_EQ(S_OK, getClass(clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
    factory->LockServer(FALSE);
    EXPECT_EQ(S_FALSE, canUnload());
    EXPECT_EQ(0u, factory->Release());
    EXPECT_EQ(S_OK, canUnload());
}

TEST_F(SignServer, Arguments_NameCountAndTypeChecked) {
    EXPECT_GT(IdOf(L"Sign"), 0);
    EXPECT_EQ(IdOf(L"sIGN"), IdOf(L"Sign"));
    EXPECT_EQ(DISPID_UNKNOWN, IdOf(L"CancelSign"));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, Invoke(IdOf(L"Login"), {L"wang"}));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Invoke(1000, {}));
    std::vector<_variant_t> sign = Signature(L"a");
    sign[5] = L"no number";
    UINT bad = 99;
    EXPECT_EQ(DISP_E_TYPEMISMATCH, Invoke(IdOf(L"Sign"), sign, &bad));
    EXPECT_EQ(7u, bad);
    sign[5] = 1L;
    EXPECT_EQ(S_OK, Invoke(IdOf(L"Sign"), sign));
}

TEST_F(SignServer, Signatures_AnswerFromWhatWasSigned) {
    EXPECT_EQ(0, Sign(L"doc1"));
    EXPECT_EQ(0, Call(L"Login", {L"", L"p", L"127.0.0.1", L"8089"}));
    EXPECT_EQ(1, Call(L"Login", {L"wang", L"p", L"127.0.0.1", L"8089"}));
    EXPECT_EQ(0, Call(L"SignatureValidate", {L"doc1"}));
    EXPECT_EQ(3, Sign(L"doc1") + Sign(L"doc1") + Sign(L"doc2"));
    EXPECT_EQ(1, Call(L"SignatureValidate", {L"doc1"}));
    EXPECT_EQ(0, Call(L"SignatureDelete", {L"doc1", L"王工", L"审核"}));
    EXPECT_EQ(1, Call(L"SignatureDelete", {L"doc1", L"王工", L"设计"}));
    EXPECT_EQ(0, Call(L"SignatureDelete", {L"doc1", L"王工", L"设计"}));
    EXPECT_EQ(1, Call(L"DeleteAllSign", {L"doc2"}));
    EXPECT_EQ(0, Call(L"SignatureValidate", {L"doc2"}));
    EXPECT_EQ(1, Call(L"SignatureInvalidDelete", {L"doc2"}));
}

} // namespace
