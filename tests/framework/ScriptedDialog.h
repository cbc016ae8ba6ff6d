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
    Script m_script;      // in the modal loop, on each WM_RUN_SCRIPT; the first is posted
    BOOL m_bFocus = TRUE; // OnInitDialog's result
    bool m_bWasVisible = false;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        PostMessage(WM_RUN_SCRIPT);
        if (m_init) m_init(*this);
        return m_bFocus;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_RUN_SCRIPT && m_script) m_script(*this);
        const LRESULT lResult = CDialog::WindowProc(message, wParam, lParam);
        m_bWasVisible = m_bWasVisible || (m_hWnd != nullptr && IsWindowVisible());
        return lResult;
    }
};
