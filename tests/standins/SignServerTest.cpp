// The signing automation server: class object, calls by name, arguments, faults, journal.
#include <windows.h>
#include <ole2.h>
#include <comdef.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <vector>

#include "tests/standins/HostedControl.h"
#include "tests/support/TempFolder.h"

namespace {

class SignServer : public testing::Test {
protected:
    SignServer() {
        SetEnvironmentVariableW(L"SIGNSERVER_JOURNAL", Journal().c_str());
        EXPECT_EQ(S_OK, CLSIDFromProgID(L"Brevanix.Brevanix0", &m_clsid));
        EXPECT_EQ(S_OK, CoCreateInstance(m_clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                         reinterpret_cast<void**>(&m_server)));
    }
    ~SignServer() override {
        SetEnvironmentVariableW(L"SIGNSERVER_JOURNAL", nullptr);
        SetEnvironmentVariableW(L"SIGNSERVER_FAULT", nullptr);
    }

    std::wstring Journal() const { return m_folder / L"journal.txt"; }
    DISPID IdOf(const wchar_t* name) {
        DISPID id = 0;
        LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
        EXPECT_EQ(S_OK, m_server->GetIDsOfNames(IID_NULL, names, 1, GetUserDefaultLCID(), &id))
            << tests::ToUtf8(name);
        return id;
    }
    // Arguments in the method's order.
    HRESULT Invoke(DISPID id, std::vector<_variant_t> arguments, _variant_t* result, UINT* bad = nullptr) {
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        return m_server->Invoke(id, IID_NULL, GetUserDefaultLCID(), DISPATCH_METHOD, &parameters, result,
                                nullptr, bad);
    }
    long Call(const wchar_t* name, std::vector<_variant_t> arguments) {
        _variant_t result;
        EXPECT_EQ(S_OK, Invoke(IdOf(name), std::move(arguments), &result)) << tests::ToUtf8(name);
        EXPECT_EQ(VT_I4, result.vt);
        return result.lVal;
    }
    long Login() { return Call(L"Login", {L"wang", L"secret-17", L"127.0.0.1", L"8089"}); }
    long Sign(const wchar_t* text = L"doc1") {
        return Call(L"Sign",
                    {text, L"t2", L"2015-07-05", L"王工", L"设计", 1.5, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.25});
    }

    tests::TempFolder m_folder;
    CLSID m_clsid = {};
    tests::DispatchPtr m_server;
};

TEST_F(SignServer, ClassObject_CountsObjectsAndLocks) {
    const HMODULE module = GetModuleHandleW(L"SignServer.dll");
    ASSERT_TRUE(module);
    const auto canUnload = reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
    const auto getClass = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    EXPECT_EQ(S_FALSE, canUnload());
    m_server = nullptr;
    EXPECT_EQ(S_OK, canUnload());

    void* none = module;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, getClass(IID_IUnknown, IID_IClassFactory, &none));
    EXPECT_EQ(nullptr, none);
    EXPECT_EQ(E_POINTER, getClass(m_clsid, IID_IClassFactory, nullptr));
    _com_ptr_t<_com_IIID<IClassFactory, &IID_IClassFactory>> factory;
    ASSERT_EQ(S_OK, getClass(m_clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
    EXPECT_EQ(S_FALSE, canUnload());
    none = module;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(factory, IID_IUnknown, &none));
    EXPECT_EQ(nullptr, none);
    EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_IClassFactory, &none));
    factory->LockServer(TRUE);
    const auto* lockedFactory = factory.Detach();
    EXPECT_EQ(0u, const_cast<IClassFactory*>(lockedFactory)->Release());
    EXPECT_EQ(S_FALSE, canUnload());
    ASSERT_EQ(S_OK, getClass(m_clsid, IID_IClassFactory, reinterpret_cast<void**>(&factory)));
    factory->LockServer(FALSE);
    factory = nullptr;
    EXPECT_EQ(S_OK, canUnload());
}

TEST_F(SignServer, Names_PositiveAnyCaseAndUnknownRefused) {
    for (const wchar_t* name : {L"Login", L"Sign", L"SignatureDelete", L"DeleteAllSign",
                                L"SignatureInvalidDelete", L"SignatureValidate", L"Test", L"sIGN"})
        EXPECT_GT(IdOf(name), 0) << tests::ToUtf8(name);
    EXPECT_EQ(IdOf(L"sign"), IdOf(L"SIGN"));
    LPOLESTR unknown[] = {const_cast<LPOLESTR>(L"CancelSign")};
    DISPID id = 7;
    EXPECT_EQ(DISP_E_UNKNOWNNAME, m_server->GetIDsOfNames(IID_NULL, unknown, 1, 0, &id));
    EXPECT_EQ(DISPID_UNKNOWN, id);
}

TEST_F(SignServer, Arguments_CountAndTypeChecked) {
    _variant_t result;
    UINT bad = 99;
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, Invoke(IdOf(L"Login"), {L"wang"}, &result));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Invoke(1000, {}, &result));
    std::vector<_variant_t> sign = {L"a", L"b", L"c", L"d", L"e", L"no number", 2.0,
                                    3.0,  4.0,  5.0,  6.0,  7.0,  8.0};
    EXPECT_EQ(DISP_E_TYPEMISMATCH, Invoke(IdOf(L"Sign"), sign, &result, &bad));
    EXPECT_EQ(7u, bad);
    sign[5] = 1L;
    EXPECT_EQ(S_OK, Invoke(IdOf(L"Sign"), sign, &result));
    DISPPARAMS none = {};
    EXPECT_EQ(DISP_E_UNKNOWNINTERFACE, m_server->Invoke(IdOf(L"Test"), IID_IUnknown, 0, DISPATCH_METHOD,
                                                        &none, nullptr, nullptr, nullptr));
    EXPECT_EQ(S_OK, Invoke(IdOf(L"Test"), {L"x"}, nullptr));
}

TEST_F(SignServer, Signatures_AnswerFromWhatWasSigned) {
    EXPECT_EQ(0, Sign());
    EXPECT_EQ(0, Call(L"Login", {L"", L"p", L"127.0.0.1", L"8089"}));
    EXPECT_EQ(1, Login());
    EXPECT_EQ(0, Call(L"SignatureValidate", {L"doc1"}));
    EXPECT_EQ(1, Sign());
    EXPECT_EQ(1, Sign());
    EXPECT_EQ(1, Call(L"SignatureValidate", {L"doc1"}));
    EXPECT_EQ(0, Call(L"SignatureDelete", {L"doc1", L"王工", L"审核"}));
    EXPECT_EQ(1, Call(L"SignatureDelete", {L"doc1", L"王工", L"设计"}));
    EXPECT_EQ(0, Call(L"SignatureDelete", {L"doc1", L"王工", L"设计"}));
    EXPECT_EQ(1, Sign(L"doc2"));
    EXPECT_EQ(1, Call(L"DeleteAllSign", {L"doc2"}));
    EXPECT_EQ(0, Call(L"SignatureValidate", {L"doc2"}));
    EXPECT_EQ(1, Call(L"SignatureInvalidDelete", {L"doc2"}));
}

TEST_F(SignServer, Fault_NthCallOrEveryCall) {
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"sign:2;Test");
    EXPECT_EQ(1, Login());
    EXPECT_EQ(1, Sign());
    EXPECT_EQ(0, Sign());
    EXPECT_EQ(1, Sign());
    EXPECT_EQ(0, Call(L"Test", {L"x"}));
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Login");
    EXPECT_EQ(0, Login());
    EXPECT_EQ(0, Sign());
}

TEST_F(SignServer, Journal_HasArgumentsButNoPassword) {
    Login();
    Sign();
    const std::string text = tests::ReadBytes(Journal());
    EXPECT_NE(std::string::npos, text.find("\tLogin\twang\t***\t127.0.0.1\t8089\t=> 1\r\n")) << text;
    EXPECT_NE(std::string::npos,
              text.find(u8"\tSign\tdoc1\tt2\t2015-07-05\t王工\t设计\t1.5\t2\t3\t4\t5\t6\t7\t8.25\t=> 1\r\n"))
        << text;
    EXPECT_EQ(std::string::npos, text.find("secret-17"));
}

} // namespace
