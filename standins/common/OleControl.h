// Base of the ActiveX controls: a control with one window, activated in place, without properties to persist.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <ocidl.h>
#include <olectl.h>

#include "base/Dispatch.h"
#include "base/Owned.h"

namespace standins {

// A derived class supplies its members, its class identifier, the messages of its window and its picture. The
// window exists only while the control is active in its container, so members must not depend on it.
class OleControl : public base::DispatchObject<IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject,
                                               IOleControl, IViewObject2, IPersistStreamInit> {
public:
    // IOleObject
    STDMETHODIMP SetClientSite(IOleClientSite* site) override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) override;
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP Close(DWORD saveOption) override;
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject** data) override;
    STDMETHODIMP DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override;
    STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
    STDMETHODIMP Update() override { return S_OK; }
    STDMETHODIMP IsUpToDate() override { return S_OK; }
    STDMETHODIMP GetUserClassID(CLSID* clsid) override { return GetClassID(clsid); }
    STDMETHODIMP GetUserType(DWORD form, LPOLESTR* type) override;
    STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
    STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
    STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override;
    STDMETHODIMP Unadvise(DWORD connection) override;
    STDMETHODIMP EnumAdvise(IEnumSTATDATA** connections) override;
    STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    // IOleInPlaceObject and IOleInPlaceActiveObject
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP InPlaceDeactivate() override;
    STDMETHODIMP UIDeactivate() override;
    STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
    STDMETHODIMP ReactivateAndUndo() override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(LPMSG) override { return S_FALSE; }
    STDMETHODIMP OnFrameWindowActivate(BOOL) override { return S_OK; }
    STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
    STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

    // IOleControl
    STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
    STDMETHODIMP OnMnemonic(LPMSG) override { return S_OK; }
    STDMETHODIMP OnAmbientPropertyChange(DISPID) override { return S_OK; }
    STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

    // IViewObject2
    STDMETHODIMP Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
                      BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) override;
    STDMETHODIMP GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) override;
    STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP Unfreeze(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    STDMETHODIMP GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) override {
        return GetExtent(aspect, size);
    }

    // IPersistStreamInit
    STDMETHODIMP GetClassID(CLSID* clsid) override;
    STDMETHODIMP IsDirty() override { return S_FALSE; }
    STDMETHODIMP Load(IStream*) override { return S_OK; }
    STDMETHODIMP Save(IStream*, BOOL) override { return S_OK; }
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
    STDMETHODIMP InitNew() override { return S_OK; }

protected:
    OleControl() = default;
    ~OleControl() override;

    virtual const CLSID& ClassId() const = 0;
    // A message of the control's window; what it does not handle goes to DefWindowProc.
    virtual LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // Paints the control into a rectangle of any device.
    virtual void DrawContent(HDC dc, const RECT& bounds) = 0;

    void* FindParent(REFIID iid) override;
    // Null while the control is not active.
    HWND Window() const { return m_window; }
    // Shows a changed picture: repaints the window and tells who watches the view.
    void ViewChanged();

private:
    HRESULT Activate(bool takeFocus);
    bool MakeWindow(HWND parent, const RECT& position);
    void DropWindow();
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    _com_ptr_t<_com_IIID<IOleClientSite, &IID_IOleClientSite>> m_site;
    _com_ptr_t<_com_IIID<IOleInPlaceSite, &IID_IOleInPlaceSite>> m_inPlaceSite; // while active
    _com_ptr_t<_com_IIID<IOleAdviseHolder, &IID_IOleAdviseHolder>> m_adviseHolder;
    _com_ptr_t<_com_IIID<IAdviseSink, &IID_IAdviseSink>> m_viewSink;
    DWORD m_viewAspects = 0;
    DWORD m_viewFlags = 0;
    SIZEL m_extent = {8000, 5000}; // in hundredths of a millimetre
    HWND m_window = nullptr;       // ends with its parent or in DropWindow
    bool m_uiActive = false;
};

} // namespace standins
