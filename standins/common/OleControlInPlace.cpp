// Base of the ActiveX controls: activation in the container's window.
#include "standins/common/OleControl.h"
#include "base/Paths.h"

namespace standins {

constexpr wchar_t kWindowClass[] = L"StandInControl";

STDMETHODIMP OleControl::GetWindow(HWND* window) {
    if (!window) return E_POINTER;
    *window = m_window;
    return m_window ? S_OK : E_FAIL;
}

HRESULT OleControl::Activate(bool takeFocus) {
    if (!m_window) {
        if (!m_site) return OLE_E_NOT_INPLACEACTIVE;
        // A window that went with its parent has left its activation open.
        InPlaceDeactivate();
        HRESULT status =
            m_site->QueryInterface(IID_IOleInPlaceSite, reinterpret_cast<void**>(&m_inPlaceSite));
        if (FAILED(status)) return status;
        if (m_inPlaceSite->CanInPlaceActivate() != S_OK) {
            m_inPlaceSite = nullptr;
            return E_FAIL;
        }
        m_inPlaceSite->OnInPlaceActivate();

        HWND parent = nullptr;
        _com_ptr_t<_com_IIID<IOleInPlaceFrame, &IID_IOleInPlaceFrame>> frame;
        _com_ptr_t<_com_IIID<IOleInPlaceUIWindow, &IID_IOleInPlaceUIWindow>> document;
        RECT position = {}, clip = {};
        OLEINPLACEFRAMEINFO info = {};
        info.cb = sizeof(info);
        status = m_inPlaceSite->GetWindow(&parent);
        if (SUCCEEDED(status))
            status = m_inPlaceSite->GetWindowContext(&frame, &document, &position, &clip, &info);
        if (SUCCEEDED(status) && !MakeWindow(parent, position)) status = HRESULT_FROM_WIN32(::GetLastError());
        if (FAILED(status)) {
            m_inPlaceSite->OnInPlaceDeactivate();
            m_inPlaceSite = nullptr;
            return status;
        }
        m_site->ShowObject();
    }
    ::ShowWindow(m_window, SW_SHOWNA);
    if (takeFocus && !m_uiActive) {
        m_uiActive = true;
        m_inPlaceSite->OnUIActivate();
        ::SetFocus(m_window);
    }
    return S_OK;
}

STDMETHODIMP OleControl::InPlaceDeactivate() {
    if (!m_inPlaceSite) return S_OK;
    UIDeactivate();
    DropWindow();
    // The site may ask about the control while it is told, so it is let go first.
    const auto site = m_inPlaceSite;
    m_inPlaceSite = nullptr;
    site->OnInPlaceDeactivate();
    return S_OK;
}

STDMETHODIMP OleControl::UIDeactivate() {
    if (!m_uiActive) return S_OK;
    m_uiActive = false;
    m_inPlaceSite->OnUIDeactivate(FALSE);
    return S_OK;
}

STDMETHODIMP OleControl::SetObjectRects(LPCRECT position, LPCRECT) {
    if (!position) return E_POINTER;
    if (!m_window) return OLE_E_NOT_INPLACEACTIVE;
    ::SetWindowPos(m_window, nullptr, position->left, position->top, position->right - position->left,
                   position->bottom - position->top, SWP_NOZORDER | SWP_NOACTIVATE);
    return S_OK;
}

bool OleControl::MakeWindow(HWND parent, const RECT& position) {
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = &OleControl::WindowProc;
    windowClass.hInstance = base::ThisModule();
    windowClass.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.lpszClassName = kWindowClass;
    if (!::RegisterClassExW(&windowClass) && ::GetLastError() != ERROR_CLASS_ALREADY_EXISTS) return false;
    return ::CreateWindowExW(WS_EX_CONTROLPARENT, kWindowClass, nullptr,
                             WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_TABSTOP, position.left,
                             position.top, position.right - position.left, position.bottom - position.top,
                             parent, nullptr, base::ThisModule(), this) != nullptr;
}

void OleControl::DropWindow() {
    if (m_window) {
        // A control in its destructor takes no more messages.
        ::SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
        ::DestroyWindow(m_window);
        m_window = nullptr;
    }
    // Fails, as it should, while another control of this DLL has a window.
    ::UnregisterClassW(kWindowClass, base::ThisModule());
}

LRESULT CALLBACK OleControl::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* created = static_cast<OleControl*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
        created->m_window = window;
    }
    auto* self = reinterpret_cast<OleControl*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        self->m_window = nullptr;
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    try {
        return self->OnMessage(window, message, wParam, lParam);
    } catch (...) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace standins
