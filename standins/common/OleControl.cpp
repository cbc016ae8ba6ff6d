// Base of the ActiveX controls: what the container asks about the control as an object.
#include "standins/common/OleControl.h"

#include "standins/common/ComServer.h"

namespace standins {

OleControl::~OleControl() {
    DropWindow();
}

void* OleControl::FindParent(REFIID iid) {
    if (iid == IID_IOleWindow) return static_cast<IOleInPlaceObject*>(this);
    if (iid == IID_IPersist) return static_cast<IPersistStreamInit*>(this);
    return nullptr;
}

STDMETHODIMP OleControl::SetClientSite(IOleClientSite* site) {
    m_site = site;
    return S_OK;
}

STDMETHODIMP OleControl::GetClientSite(IOleClientSite** site) {
    if (!site) return E_POINTER;
    *site = m_site;
    if (*site) (*site)->AddRef();
    return S_OK;
}

STDMETHODIMP OleControl::Close(DWORD) {
    InPlaceDeactivate();
    return S_OK;
}

STDMETHODIMP OleControl::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
    switch (verb) {
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE:
        return Activate(false);
    case OLEIVERB_PRIMARY:
    case OLEIVERB_UIACTIVATE:
        return Activate(true);
    case OLEIVERB_HIDE:
        UIDeactivate();
        if (m_window) ::ShowWindow(m_window, SW_HIDE);
        return S_OK;
    default:
        return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
    }
}

STDMETHODIMP OleControl::SetExtent(DWORD aspect, SIZEL* size) {
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (!size) return E_POINTER;
    m_extent = *size;
    return S_OK;
}

STDMETHODIMP OleControl::GetExtent(DWORD aspect, SIZEL* size) {
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (!size) return E_POINTER;
    *size = m_extent;
    return S_OK;
}

STDMETHODIMP OleControl::GetMiscStatus(DWORD aspect, DWORD* status) {
    if (!status) return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? kControlMiscStatus : 0;
    return S_OK;
}

STDMETHODIMP OleControl::GetClassID(CLSID* clsid) {
    if (!clsid) return E_POINTER;
    *clsid = ClassId();
    return S_OK;
}

} // namespace standins
