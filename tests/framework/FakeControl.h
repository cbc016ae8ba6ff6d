// A control that a test dialog can name: it answers automation calls and has no window.
#pragma once

#include <windows.h>
#include <ole2.h>

enum FakeMember { FakeJoin = 1, FakeNumber = 2, FakeFail = 3, FakeSelf = 4 };

// Its class can be created from construction to destruction. There is one object at a time.
class FakeControlClass : public IClassFactory {
public:
    FakeControlClass();
    ~FakeControlClass();

    static long LiveReferences();

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown* pOuter, REFIID riid, void** ppv) override;
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    DWORD m_dwCookie = 0;
};
