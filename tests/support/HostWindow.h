// A host's main window for the library's dialogs.
#pragma once
#include <afxwin.h>

namespace tests {

class HostWindow {
public:
    HostWindow();
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    CWnd* Window() { return &m_window; }
    operator CWnd*() { return &m_window; }

private:
    CWnd m_window;
};

} // namespace tests
