// The fake server's objects write every call down.
#include "tests/sign/FakeServer.h"

namespace tests {

static std::wstring Written(const VARIANT& argument) {
    wchar_t number[32];
    _snwprintf(number, 32, L"%g", argument.dblVal);
    return argument.vt == VT_BSTR ? argument.bstrVal : argument.vt == VT_R8 ? number : L"<other type>";
}

struct FakeObject final : IDispatch {
    FakeServer& server;
    ULONG references = 1;

    explicit FakeObject(FakeServer& server) : server(server) { ++server.m_objects; }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || (iid == IID_IDispatch && server.m_automation);
        *object = known ? this : reinterpret_cast<void*>(8); // there are servers that leave it unset
        return known ? AddRef(), S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override {
        if (--references > 0) return references;
        --server.m_objects;
        delete this;
        return 0;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        EXPECT_TRUE(iid == IID_NULL && count == 1 && locale == GetUserDefaultLCID());
        server.m_seen.push_back(std::wstring(L"? ") + names[0]);
        const auto method = server.m_methods.find(names[0]);
        if (method == server.m_methods.end()) return DISP_E_UNKNOWNNAME;
        *ids = method->second;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        EXPECT_TRUE(iid == IID_NULL && flags == DISPATCH_METHOD && locale == GetUserDefaultLCID());
        EXPECT_TRUE(parameters->cNamedArgs == 0 && result && result->vt == VT_EMPTY && exception);
        std::wstring call = std::to_wstring(id) + L"(";
        for (UINT left = parameters->cArgs; left > 0; --left)
            call += Written(parameters->rgvarg[left - 1]) + (left > 1 ? L"|" : L"");
        server.m_seen.push_back(call + L")");
        if (server.m_answer) return server.m_answer(*result, *exception);
        _variant_t one(1L);
        return VariantCopy(result, &one);
    }
};

CLSID FakeServer::NewClassId() {
    CLSID clsid = {};
    EXPECT_EQ(CoCreateGuid(&clsid), S_OK);
    return clsid;
}

FakeServer::FakeServer(const CLSID& clsid) : TestClass(clsid) {
    wchar_t text[40];
    StringFromGUID2(clsid, text, 40);
    EXPECT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, (m_progID + L"\\CLSID").c_str(), nullptr, REG_SZ, text, 78),
              0);
}

FakeServer::~FakeServer() {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, m_progID.c_str());
    EXPECT_EQ(m_objects, 0) << "server objects were leaked";
}

HRESULT STDMETHODCALLTYPE FakeServer::CreateInstance(IUnknown*, REFIID iid, void** object) {
    FakeObject* const created = new FakeObject(*this);
    const HRESULT hr = created->QueryInterface(iid, object);
    created->Release();
    return hr;
}

} // namespace tests
