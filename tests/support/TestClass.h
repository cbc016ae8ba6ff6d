#pragma once
#include <gtest/gtest.h>
#include <windows.h>
#include <unknwn.h>

namespace tests {

// While it lives, objects of the class come from it in this process. A test owns it; references to it are not
// counted.
class TestClass : public IClassFactory {
public:
    explicit TestClass(const CLSID& clsid) {
        EXPECT_EQ(S_OK, CoRegisterClassObject(clsid, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                              &m_registration));
    }
    ~TestClass() { CoRevokeClassObject(m_registration); }
    TestClass(const TestClass&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override { return *object = this, S_OK; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    DWORD m_registration = 0;
};

} // namespace tests
