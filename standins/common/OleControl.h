// Base of the ActiveX controls: a control with one window, activated in place, without properties to persist.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>
#include <olectl.h>

#include "base/Dispatch.h"
#include "base/Owned.h"

namespace standins {

// A derived class supplies its members, its class identifier and the messages of its window. The
// window exists only while the control is active in its container, so members must not depend on it.
class OleControl
    : public base::DispatchObject<IOleObject, IOleInPlaceObject, IOleControl, IPersistStreamInit> {
public:
    // IOleObject
    STDMETHODIMP SetClientSite(IOleClientSite* site) override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) override;
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP Close(DWORD saveOption) override;
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    STDMETHODIMP DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    STDMETHODIMP Update() override { return S_OK; }
    STDMETHODIMP IsUpToDate() override { return S_OK; }
    STDMETHODIMP GetUserClassID(CLSID* clsid) override { return GetClassID(clsid); }
    STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
    STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP Unadvise(DWORD) override { return OLE_E_NOCONNECTION; }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleInPlaceObject
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
    STDMETHODIMP ReactivateAndUndo() override { return E_NOTIMPL; }

    // IOleControl
    STDMETHODIMP GetControlInfo(CONTROLINFO*) override { return E_NOTIMPL; }
    STDMETHODIMP OnMnemonic(LPMSG) override { return S_OK; }
    STDMETHODIMP OnAmbientPropertyChange(DISPID) override { return S_OK; }
    STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

    // IPersistStreamInit
    STDMETHODIMP GetClassID(CLSID* clsid) override;
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream*) override { return S_OK; }
    STDMETHODIMP Save(IStream*, BOOL) override { return S_OK; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER*) override { return E_NOTIMPL; }
    STDMETHODIMP InitNew() override { return S_OK; }

protected:
    OleControl() = default;
    ~OleControl() override;

    virtual const CLSID& ClassId() const = 0;
    // A message of the control's window; what it does not handle goes to DefWindowProc.
    virtual LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;

    void* FindParent(REFIID iid) override;
    // Null while the control is not active.
    HWND Window() const { return m_window; }

private:
    HRESULT Activate(bool takeFocus);
    bool MakeWindow(HWND parent, const RECT& position);
    void DropWindow();
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    _com_ptr_t<_com_IIID<IOleClientSite, &IID_IOleClientSite>> m_site;
    _com_ptr_t<_com_IIID<IOleInPlaceSite, &IID_IOleInPlaceSite>> m_inPlaceSite; // while active
    SIZEL m_extent = {8000, 5000}; // in hundredths of a millimetre
    HWND m_window = nullptr;       // ends with its parent or in DropWindow
    bool m_uiActive = false;
};

} // namespace standins
