// A dialog whose start and course a test supplies.
#pragma once

#include <afxwin.h>

#include <functional>

#include "tests/framework/resource.h"

const UINT WM_RUN_SCRIPT = WM_APP + 1;

class CScriptedDialog : public CDialog {
public:
    using Script = std::function<void(CScriptedDialog&)>;

    explicit CScriptedDialog(UINT nIDTemplate = IDD_PLAIN, CWnd* pParent = nullptr)
        : CDialog(nIDTemplate, pParent) {}

    Script m_init;        // in OnInitDialog
    Script m_script;      // in the modal loop, on each WM_RUN_SCRIPT; the first comes when the dialog shows
    BOOL m_bFocus = TRUE; // OnInitDialog's result
    bool m_bWasVisible = false;
    static constexpr UINT_PTR m_nWaiting = 77;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        PostMessage(WM_RUN_SCRIPT);
        if (m_init) m_init(*this);
        return m_bFocus;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_TIMER && wParam == m_nWaiting) {
            KillTimer(m_nWaiting);
            PostMessage(WM_RUN_SCRIPT);
        }
        // The loop may show the dialog only when there is nothing else to do.
        if (message == WM_RUN_SCRIPT && !IsWindowVisible())
            SetTimer(m_nWaiting, USER_TIMER_MINIMUM, nullptr);
        else if (message == WM_RUN_SCRIPT && m_script)
            m_script(*this);
        const LRESULT lResult = CDialog::WindowProc(message, wParam, lParam);
        m_bWasVisible = m_bWasVisible || (m_hWnd != nullptr && IsWindowVisible());
        return lResult;
    }
};
