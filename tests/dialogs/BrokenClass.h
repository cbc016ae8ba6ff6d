// A control that is not installed.
#pragma once
#include <gtest/gtest.h>
#include <windows.h>
#include <unknwn.h>

namespace tests {

// While it lives, this process can make no object of the class. References to it are not counted.
class BrokenClass final : public IClassFactory {
public:
    explicit BrokenClass(const CLSID& clsid) {
        EXPECT_EQ(S_OK, CoRegisterClassObject(clsid, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                              &m_registration));
    }
    ~BrokenClass() { CoRevokeClassObject(m_registration); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override { return *object = this, S_OK; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, void** object) override {
        *object = nullptr;
        return REGDB_E_CLASSNOTREG;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    DWORD m_registration = 0;
};

} // namespace tests
