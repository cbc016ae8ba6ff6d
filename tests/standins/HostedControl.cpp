// An ActiveX control in a window of the system's control container.
#include "tests/standins/HostedControl.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tests {

template <class Function>
static Function* AtlFunction(const char* name) {
    static const HMODULE atl = LoadLibraryW(L"atl.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(atl, name)));
}

HostedControl::HostedControl(const CLSID& clsid) {
    AtlFunction<BOOL WINAPI()>("AtlAxWinInit")();
    m_frame = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"host", WS_POPUP, 0, 0, 640, 400, nullptr,
                              nullptr, nullptr, nullptr);
    m_container = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 600, 300, m_frame,
                                  nullptr, nullptr, nullptr);
    EXPECT_EQ(S_OK, CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                     reinterpret_cast<void**>(&m_control)));
    if (!m_control) return;
    // Not activated: without a window manager the end of a window that was active takes seconds.
    ShowWindow(m_frame, SW_SHOWNA);
    const auto attach = AtlFunction<HRESULT WINAPI(IUnknown*, HWND, IUnknown**)>("AtlAxAttachControl");
    EXPECT_EQ(S_OK, attach(m_control, m_container, &m_site));
    Pump();
}

HostedControl::~HostedControl() {
    m_control = nullptr;
    m_site = nullptr;
    DestroyWindow(m_frame);
    Pump();
}

HWND HostedControl::Window() const {
    return GetWindow(m_container, GW_CHILD);
}

HRESULT HostedControl::Invoke(DISPID id, WORD flags, std::vector<_variant_t> arguments, _variant_t* result) {
    std::reverse(arguments.begin(), arguments.end());
    DISPID valueName = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if (flags & DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &valueName;
        parameters.cNamedArgs = 1;
    }
    return m_control->Invoke(id, IID_NULL, 0, flags, &parameters, result, nullptr, nullptr);
}

void HostedControl::Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

COLORREF HostedControl::PixelAt(int x, int y) const {
    UpdateWindow(Window());
    const HDC dc = GetDC(Window());
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(Window(), dc);
    return color;
}

} // namespace tests
