// Modal dialogs: how they run, end, treat their owner, and exchange data with their controls.
#include "tests/framework/ScriptedDialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/HostWindow.h"

using tests::HostWindow;

namespace {

void PressKey(CWnd& wnd, WPARAM key) {
    ::PostMessage(::GetFocus() != nullptr ? ::GetFocus() : wnd.m_hWnd, WM_KEYDOWN, key, 0);
}

} // namespace

TEST(Dialog, MessageMap_ReachesEachHandler) {
    CScriptedDialog dialog;
    int nClicks = 0;
    dialog.m_script = [](CScriptedDialog& d) { d.GetDlgItem(IDC_PRESS)->SendMessage(BM_CLICK); };
    dialog.m_click = [&](CScriptedDialog& d) {
        ++nClicks;
        d.SetTimer(1, 10, nullptr);
    };
    dialog.m_timer = [](CScriptedDialog& d) {
        d.KillTimer(1);
        d.EndDialog(77);
    };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_EQ(1, nClicks);
    EXPECT_TRUE(dialog.m_bWasVisible);
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST(Dialog, EndedInInit_IsNeverShown) {
    HostWindow host;
    for (const BOOL bFocus : {FALSE, TRUE}) {
        CScriptedDialog dialog(IDD_PLAIN, host);
        dialog.m_bFocus = bFocus;
        dialog.m_init = [](CScriptedDialog& d) { d.EndDialog(IDOK); };
        dialog.m_script = [](CScriptedDialog&) { ADD_FAILURE() << "the dialog ran"; };
        EXPECT_EQ(IDOK, dialog.DoModal());
        EXPECT_FALSE(dialog.m_bWasVisible);
        EXPECT_TRUE(host.Window()->IsWindowEnabled());
        EXPECT_EQ(host.Window()->m_hWnd, ::GetActiveWindow());
    }
}

TEST(Dialog, Owner_IsDisabledWhileTheDialogRuns) {
    HostWindow host;
    CWnd child; // a child window as parent stands for its top-level window
    child.Attach(::CreateWindowEx(0, _T("STATIC"), nullptr, WS_CHILD, 0, 0, 9, 9, *host.Window(), nullptr,
                                  nullptr, nullptr));
    CScriptedDialog dialog(IDD_PLAIN, &child);
    dialog.m_script = [&](CScriptedDialog& d) {
        EXPECT_FALSE(host.Window()->IsWindowEnabled());
        EXPECT_EQ(host.Window()->m_hWnd, ::GetWindow(d, GW_OWNER));
        d.EndDialog(1);
    };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_TRUE(host.Window()->IsWindowEnabled());
    EXPECT_EQ(host.Window()->m_hWnd, ::GetActiveWindow());

    host.Window()->EnableWindow(FALSE);
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_FALSE(host.Window()->IsWindowEnabled()) << "it was disabled before";
}

TEST(Dialog, NestedDialog_DisablesOnlyItsOwner) {
    HostWindow host;
    CScriptedDialog outer(IDD_PLAIN, host);
    CScriptedDialog inner(IDD_PLAIN, &outer);
    inner.m_script = [&](CScriptedDialog& d) {
        EXPECT_FALSE(outer.IsWindowEnabled());
        d.EndDialog(5);
    };
    outer.m_script = [&](CScriptedDialog& d) {
        CWnd* pName = d.GetDlgItem(IDC_NAME);
        EXPECT_EQ(5, inner.DoModal());
        EXPECT_EQ(IDC_NAME, pName->GetDlgCtrlID()) << "temporary objects outlast a dialog within a handler";
        EXPECT_TRUE(d.IsWindowEnabled());
        EXPECT_FALSE(host.Window()->IsWindowEnabled());
        d.EndDialog(6);
    };
    EXPECT_EQ(6, outer.DoModal());
}

TEST(Dialog, Keys_EscapeCancelsAndEnterPressesTheDefaultButton) {
    HostWindow host;
    CScriptedDialog dialog(IDD_PLAIN, host);
    dialog.m_script = [](CScriptedDialog& d) {
        EXPECT_EQ(d.GetDlgItem(IDC_NAME), CWnd::GetFocus());
        PressKey(d, VK_ESCAPE);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());

    dialog.m_script = [](CScriptedDialog& d) { PressKey(d, VK_RETURN); };
    dialog.m_click = [](CScriptedDialog& d) { d.EndDialog(9); };
    EXPECT_EQ(9, dialog.DoModal());
}

TEST(Dialog, OpensCentredOverItsOwner) {
    HostWindow host;
    CScriptedDialog dialog(IDD_PLAIN, host);
    CRect rect, owner;
    dialog.m_script = [&](CScriptedDialog& d) {
        d.GetWindowRect(rect);
        d.EndDialog(1);
    };
    dialog.DoModal();
    host.Window()->GetWindowRect(owner);
    EXPECT_NEAR(owner.CenterPoint().x, rect.CenterPoint().x, 1);
    EXPECT_NEAR(owner.CenterPoint().y, rect.CenterPoint().y, 1);

    dialog.m_init = [](CScriptedDialog& d) {
        d.SetWindowPos(nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    };
    dialog.DoModal();
    EXPECT_EQ(CPoint(3, 4), rect.TopLeft()) << "a dialog that placed itself stays there";
}

TEST(Dialog, DestroyedOrQuit_EndsWithoutResult) {
    HostWindow host;
    CScriptedDialog dialog(IDD_PLAIN, host);
    dialog.m_script = [](CScriptedDialog& d) { d.DestroyWindow(); };
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(host.Window()->IsWindowEnabled());

    dialog.m_script = [](CScriptedDialog&) { ::PostQuitMessage(12); };
    EXPECT_EQ(-1, dialog.DoModal());
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        << "it is for the program's own loop";
    EXPECT_EQ(12u, msg.wParam);

    EXPECT_EQ(-1, CScriptedDialog(999, host).DoModal()) << "no such template";
    EXPECT_EQ(-1, CScriptedDialog(IDD_BROKEN, host).DoModal()) << "a control of no known class";
    EXPECT_TRUE(host.Window()->IsWindowEnabled());
}

TEST(Dialog, FailingHandlers_LeaveTheDialogRunning) {
    CScriptedDialog dialog;
    dialog.m_init = [](CScriptedDialog&) { AfxThrowResourceException(); };
    dialog.m_script = [](CScriptedDialog& d) {
        d.PostMessage(WM_COMMAND, IDC_PRESS);
        d.SetTimer(1, 20, nullptr);
    };
    dialog.m_click = [](CScriptedDialog&) { throw std::runtime_error("click"); };
    dialog.m_timer = [](CScriptedDialog& d) { d.EndDialog(3); };
    EXPECT_EQ(3, dialog.DoModal());
    EXPECT_TRUE(dialog.m_bWasVisible);
}

namespace {

class CExchangeDialog : public CScriptedDialog {
public:
    CEdit m_name;
    CDateTimeCtrl m_date;
    CProgressCtrl m_progress;
    CString m_strName;
    int m_nMissing = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CScriptedDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_NAME, m_name);
        DDX_Control(pDX, IDC_DATE, m_date);
        DDX_Control(pDX, IDC_PROGRESS, m_progress);
        if (pDX->m_bSaveAndValidate)
            m_name.GetWindowText(m_strName);
        else
            pDX->m_pDlgWnd->SetDlgItemText(IDC_NAME, m_strName);
        if (m_nMissing != 0) pDX->PrepareCtrl(m_nMissing);
    }
};

} // namespace

TEST(Dialog, DataExchange_BothWays) {
    CExchangeDialog dialog;
    dialog.m_script = [&](CScriptedDialog& d) {
        EXPECT_EQ(&dialog.m_name, d.GetDlgItem(IDC_NAME));
        EXPECT_EQ(5, dialog.m_name.GetWindowTextLength());
        const CTime day(2015, 7, 5, 0, 0, 0);
        CTime read;
        EXPECT_TRUE(dialog.m_date.SetTime(&day));
        EXPECT_EQ(static_cast<DWORD>(GDT_VALID), dialog.m_date.GetTime(read));
        EXPECT_EQ(5, read.GetDay());
        dialog.m_progress.SetRange32(0, 100000);
        dialog.m_progress.SetPos(70000);
        EXPECT_EQ(70000, dialog.m_progress.GetPos());
        dialog.m_name.SetSel(5, -1);
        dialog.m_name.ReplaceSel(_T(" 二"));
        d.PostMessage(WM_COMMAND, IDOK);
    };
    for (int nRun = 0; nRun < 2; ++nRun) { // controls are attached anew
        dialog.m_strName = _T("first");
        EXPECT_EQ(IDOK, dialog.DoModal());
        EXPECT_STREQ(L"first 二", dialog.m_strName);
        EXPECT_EQ(nullptr, dialog.m_name.m_hWnd);
    }

    dialog.m_script = [&](CScriptedDialog& d) {
        CString text = _T("old");
        EXPECT_EQ(0, d.GetDlgItemText(4711, text));
        dialog.m_nMissing = 4711;
        EXPECT_FALSE(d.UpdateData());
        d.SendMessage(WM_COMMAND, IDOK); // refused
        EXPECT_TRUE(d.ContinueModal());
        d.EndDialog(8);
    };
    EXPECT_EQ(8, dialog.DoModal());
    EXPECT_EQ(-1, dialog.DoModal()) << "it cannot start without its controls";
    EXPECT_EQ(nullptr, dialog.m_name.m_hWnd);
}
