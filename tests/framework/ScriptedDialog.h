// A dialog whose start and course a test supplies.
#pragma once

#include <afxcmn.h>
#include <afxdtctl.h>
#include <afxwin.h>

#include <functional>

#include "tests/framework/resource.h"

const UINT WM_RUN_SCRIPT = WM_APP + 1;

class CScriptedDialog : public CDialog {
public:
    using Script = std::function<void(CScriptedDialog&)>;

    explicit CScriptedDialog(UINT nIDTemplate = IDD_PLAIN, CWnd* pParent = nullptr)
        : CDialog(nIDTemplate, pParent) {}

    Script m_init;           // in OnInitDialog
    Script m_script;         // once, in the modal loop
    Script m_click, m_timer; // on one of the two buttons, on a timer
    BOOL m_bFocus = TRUE;    // OnInitDialog's result
    bool m_bWasVisible = false;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        PostMessage(WM_RUN_SCRIPT);
        if (m_init) m_init(*this);
        return m_bFocus;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT lResult = CDialog::WindowProc(message, wParam, lParam);
        m_bWasVisible = m_bWasVisible || (m_hWnd != nullptr && IsWindowVisible());
        return lResult;
    }
    afx_msg void OnClickedPress() {
        if (m_click) m_click(*this);
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent) {
        CDialog::OnTimer(nIDEvent);
        if (m_timer) m_timer(*this);
    }
    afx_msg LRESULT OnRunScript(WPARAM, LPARAM) {
        if (m_script) m_script(*this);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};
