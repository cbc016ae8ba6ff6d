// A static object with a visible count of references.
#include "tests/framework/FakeControl.h"

#include <string>

namespace {

const CLSID kFakeControl = {0x7B0C5A06, 0x3C0E, 0x4B7C, {0x9E, 0x36, 0x0F, 0x5B, 0x6A, 0x0D, 0x9E, 0x02}};

// A host asks for this interface, and lives as long as the control holds its site.
class FakeOleObject : public IOleObject {
    IOleClientSite* m_site = nullptr;

public:
    STDMETHODIMP SetClientSite(IOleClientSite* site) override {
        if (site) site->AddRef();
        if (m_site) m_site->Release();
        m_site = site;
        return S_OK;
    }
    STDMETHODIMP GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP Close(DWORD) override { return S_OK; }
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    STDMETHODIMP DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override { return S_OK; }
    STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    STDMETHODIMP Update() override { return S_OK; }
    STDMETHODIMP IsUpToDate() override { return S_OK; }
    STDMETHODIMP GetUserClassID(CLSID* clsid) override {
        *clsid = kFakeControl;
        return S_OK;
    }
    STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    STDMETHODIMP SetExtent(DWORD, SIZEL*) override { return S_OK; }
    STDMETHODIMP GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP Unadvise(DWORD) override { return S_OK; }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    STDMETHODIMP GetMiscStatus(DWORD, DWORD* status) override {
        *status = 0;
        return S_OK;
    }
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }
};

class FakeControl : public IDispatch, public FakeOleObject {
public:
    long m_references = 0;
    long m_number = 0;

    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override {
        *ppv = nullptr;
        if (riid == IID_IUnknown || riid == IID_IDispatch) *ppv = static_cast<IDispatch*>(this);
        if (riid == IID_IOleObject) *ppv = static_cast<IOleObject*>(this);
        if (!*ppv) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override { return --m_references; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                        EXCEPINFO* info, UINT*) override {
        switch (member) {
        case FakeJoin: { // text, number, factor, yes -> "text:number:factor:yes"
            if (params->cArgs != 4) return DISP_E_BADPARAMCOUNT;
            const VARIANT* args = params->rgvarg; // last first
            const std::wstring text = std::wstring(args[3].bstrVal) + L":" + std::to_wstring(args[2].lVal) +
                                      L":" + std::to_wstring(static_cast<int>(args[1].dblVal * 10)) + L":" +
                                      std::to_wstring(args[0].boolVal);
            V_VT(result) = VT_BSTR;
            V_BSTR(result) = SysAllocString(text.c_str());
            return S_OK;
        }
        case FakeNumber:
            if (flags & DISPATCH_PROPERTYPUT) {
                if (params->cNamedArgs != 1 || params->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)
                    return DISP_E_PARAMNOTOPTIONAL;
                m_number = params->rgvarg[0].lVal;
            } else {
                V_VT(result) = VT_I4;
                V_I4(result) = m_number;
            }
            return S_OK;
        case FakeFail:
            info->wCode = 1001;
            info->bstrDescription = SysAllocString(L"描述");
            info->bstrSource = SysAllocString(L"fake");
            return DISP_E_EXCEPTION;
        case FakeSelf:
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = this;
            AddRef();
            return S_OK;
        default:
            return DISP_E_MEMBERNOTFOUND;
        }
    }
};

FakeControl g_control;

} // namespace

FakeControlClass::FakeControlClass() {
    CoRegisterClassObject(kFakeControl, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_dwCookie);
}

FakeControlClass::~FakeControlClass() {
    CoRevokeClassObject(m_dwCookie);
}

long FakeControlClass::LiveReferences() {
    return g_control.m_references;
}

STDMETHODIMP FakeControlClass::QueryInterface(REFIID riid, void** ppv) {
    *ppv = riid == IID_IUnknown || riid == IID_IClassFactory ? this : nullptr;
    return *ppv ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP FakeControlClass::CreateInstance(IUnknown*, REFIID riid, void** ppv) {
    return g_control.QueryInterface(riid, ppv);
}
