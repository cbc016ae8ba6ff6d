// Automation calls, and an ActiveX control in a window of the system's control container.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <comdef.h>
#include <vector>

namespace tests {

using DispatchPtr = _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>>;

// Arguments in the member's order.
HRESULT Invoke(IDispatch* object, DISPID id, WORD flags, std::vector<_variant_t> arguments,
               _variant_t* result = nullptr, UINT* badArgument = nullptr);
// Handles the messages that are waiting.
void Pump();

struct HostedControl {
    // Makes a visible top-level window with the container's window as its child, and the control in that.
    explicit HostedControl(const CLSID& clsid);
    ~HostedControl();
    // The control's own window.
    HWND Window() const { return GetWindow(m_container, GW_CHILD); }

    HWND m_frame, m_container;
    DispatchPtr m_control;
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> m_site;
};

} // namespace tests
