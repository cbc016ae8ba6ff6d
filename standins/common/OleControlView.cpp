// Base of the ActiveX controls: drawing for a container that does not show the control's window.
#include "standins/common/OleControl.h"

namespace standins {

STDMETHODIMP OleControl::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds,
                              LPCRECTL, BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) {
    if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
    if (!dc || !bounds) return E_INVALIDARG;
    return base::GuardedCall([&] {
        DrawContent(dc, {bounds->left, bounds->top, bounds->right, bounds->bottom});
        return S_OK;
    });
}

STDMETHODIMP OleControl::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) {
    if (colors) *colors = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP OleControl::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    m_viewAspects = aspects;
    m_viewFlags = flags;
    m_viewSink = sink;
    if (sink && (flags & ADVF_PRIMEFIRST)) ViewChanged();
    return S_OK;
}

STDMETHODIMP OleControl::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
    if (aspects) *aspects = m_viewAspects;
    if (flags) *flags = m_viewFlags;
    if (sink) {
        *sink = m_viewSink;
        if (*sink) (*sink)->AddRef();
    }
    return S_OK;
}

void OleControl::ViewChanged() {
    if (m_window) ::InvalidateRect(m_window, nullptr, TRUE);
    if (!m_viewSink || !(m_viewAspects & DVASPECT_CONTENT)) return;
    const auto sink = m_viewSink;
    if (m_viewFlags & ADVF_ONLYONCE) m_viewSink = nullptr;
    sink->OnViewChange(DVASPECT_CONTENT, -1);
}

} // namespace standins
