#pragma once
#include <afxwin.h>

namespace tests {

// A visible main window of a host, for the library's dialogs.
class HostWindow {
public:
    HostWindow() {
        m_window.Attach(CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 900,
                                        700, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
    }
    ~HostWindow() { DestroyWindow(m_window.Detach()); }
    HostWindow& operator=(HostWindow&&) = delete;

    CWnd* Window() { return &m_window; }
    operator CWnd*() { return &m_window; }

private:
    CWnd m_window;
};

} // namespace tests
