// The host's main window, owner of everything that the library shows.
#pragma once

#include <afxwin.h>

namespace host {

class MainWindow : public CWnd {
public:
    ~MainWindow() override;

    /// A silent run's window is never shown. False when it can't be made.
    bool Create(bool visible);
    /// Shows in the window what the run is doing.
    void ShowStep(const CString& text);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    CString m_step;
};

} // namespace host
