// A dialog whose course a test supplies.
#pragma once

#include <afxwin.h>

#include <functional>

#include "tests/framework/resource.h"

class CScriptedDialog : public CDialog {
public:
    explicit CScriptedDialog(UINT nIDTemplate, CWnd* pParent = nullptr) : CDialog(nIDTemplate, pParent) {}

    std::function<void(CScriptedDialog&)> m_script; // runs in the modal loop, once the dialog shows

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        SetTimer(kWaiting, USER_TIMER_MINIMUM, nullptr);
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_TIMER || wParam != kWaiting || !IsWindowVisible())
            return CDialog::WindowProc(message, wParam, lParam);
        KillTimer(kWaiting);
        m_script(*this);
        return 0;
    }

private:
    static constexpr UINT_PTR kWaiting = 77;
};
