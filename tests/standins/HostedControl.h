// An ActiveX control in a window of the system's control container.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <comdef.h>
#include <vector>

namespace tests {

using DispatchPtr = _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>>;

class HostedControl {
public:
    // Makes a visible top-level window with the container's window as its child, and the control in that.
    explicit HostedControl(const CLSID& clsid);
    ~HostedControl();
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    IDispatch* Control() const { return m_control; }
    // The container's window.
    HWND Container() const { return m_container; }
    // The control's own window.
    HWND Window() const;
    // Arguments in the member's order.
    HRESULT Invoke(DISPID id, WORD flags, std::vector<_variant_t> arguments, _variant_t* result = nullptr);
    // Handles the messages that are waiting.
    static void Pump();
    // The colour of a pixel of the control's window.
    COLORREF PixelAt(int x, int y) const;

private:
    HWND m_frame = nullptr;
    HWND m_container = nullptr;
    DispatchPtr m_control;
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> m_site;
};

} // namespace tests
