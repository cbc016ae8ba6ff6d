// A plain visible top-level window, attached to the framework's window class.
#include "tests/support/HostWindow.h"

namespace tests {

HostWindow::HostWindow() {
    m_window.Attach(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 900, 700,
                                    nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
}

HostWindow::~HostWindow() {
    DestroyWindow(m_window.Detach());
}

} // namespace tests
