// The container is that of the system's template library.
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
    m_frame = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 0, 0, 640, 400, nullptr, nullptr,
                              nullptr, nullptr);
    m_container = CreateWindowExW(0, L"AtlAxWin", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 600, 300, m_frame,
                                  nullptr, nullptr, nullptr);
    EXPECT_EQ(S_OK, m_control.CreateInstance(clsid));
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

HRESULT Invoke(IDispatch* object, DISPID id, WORD flags, std::vector<_variant_t> arguments,
               _variant_t* result, UINT* badArgument) {
    std::reverse(arguments.begin(), arguments.end());
    DISPID valueName = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &valueName;
        parameters.cNamedArgs = 1;
    }
    return object->Invoke(id, IID_NULL, GetUserDefaultLCID(), flags, &parameters, result, nullptr,
                          badArgument);
}

void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace tests
