// Modal dialogs: how they run, end, treat their owner, and find their controls.
#include "tests/framework/ScriptedDialog.h"

#include <gtest/gtest.h>

#include "tests/support/HostWindow.h"

using tests::HostWindow;

namespace {

void PressKey(WPARAM key) {
    ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 0);
}

bool IsEnabled(HostWindow& host) {
    return ::IsWindowEnabled(*host.Window()) != FALSE;
}

} // namespace

TEST(Dialog, EndedInInit_IsNeverShown) {
    HostWindow host;
    for (const BOOL bFocus : {FALSE, TRUE}) {
        CScriptedDialog dialog(IDD_PLAIN, host);
        dialog.m_bFocus = bFocus;
        dialog.m_init = [](CScriptedDialog& d) { d.EndDialog(IDOK); };
        dialog.m_script = [](CScriptedDialog&) { ADD_FAILURE() << "the dialog ran"; };
        EXPECT_EQ(IDOK, dialog.DoModal());
        EXPECT_FALSE(dialog.m_bWasVisible);
        EXPECT_TRUE(IsEnabled(host));
        EXPECT_EQ(host.Window()->m_hWnd, ::GetActiveWindow());
    }
}

TEST(Dialog, Owner_IsDisabledWhileTheDialogRuns) {
    HostWindow host;
    CWnd child; // stands for its top-level window
    child.Attach(::CreateWindowEx(0, _T("STATIC"), nullptr, WS_CHILD, 0, 0, 9, 9, *host.Window(), nullptr,
                                  nullptr, nullptr));
    // Without a parent, the active window is meant.
    for (CWnd* pParent : {static_cast<CWnd*>(nullptr), &child}) {
        CScriptedDialog dialog(IDD_PLAIN, pParent);
        dialog.m_script = [&](CScriptedDialog& d) {
            EXPECT_FALSE(IsEnabled(host));
            EXPECT_EQ(host.Window()->m_hWnd, ::GetWindow(d, GW_OWNER));
            CRect rect, owner;
            d.GetWindowRect(rect);
            host.Window()->GetWindowRect(owner);
            EXPECT_NEAR(owner.left + owner.right, rect.left + rect.right, 2) << "centred";
            EXPECT_NEAR(owner.top + owner.bottom, rect.top + rect.bottom, 2) << "centred";
            EXPECT_EQ(::GetDlgItem(d, IDC_NAME), ::GetFocus());
            PressKey(VK_ESCAPE);
        };
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
        EXPECT_EQ(nullptr, dialog.m_hWnd);
        EXPECT_TRUE(dialog.m_bWasVisible);
        EXPECT_TRUE(IsEnabled(host));
        EXPECT_EQ(host.Window()->m_hWnd, ::GetActiveWindow());
    }

    CScriptedDialog dialog(IDD_PLAIN, host);
    dialog.m_script = [](CScriptedDialog&) { PressKey(VK_ESCAPE); };
    host.Window()->EnableWindow(FALSE);
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_TRUE(IsEnabled(host)) << "although it was disabled before";
}

TEST(Dialog, NestedDialog_DisablesOnlyItsOwner) {
    HostWindow host;
    CScriptedDialog outer(IDD_PLAIN, host);
    CScriptedDialog inner(IDD_PLAIN, &outer);
    inner.m_script = [&](CScriptedDialog&) {
        EXPECT_FALSE(::IsWindowEnabled(outer));
        PressKey(VK_RETURN);
    };
    outer.m_script = [&](CScriptedDialog& d) {
        EXPECT_EQ(IDOK, inner.DoModal());
        EXPECT_TRUE(::IsWindowEnabled(d));
        EXPECT_FALSE(IsEnabled(host));
        d.EndDialog(6);
    };
    EXPECT_EQ(6, outer.DoModal());
}

TEST(Dialog, WithoutItsTemplate_EndsWithoutResult) {
    HostWindow host;
    EXPECT_EQ(-1, CScriptedDialog(999, host).DoModal()) << "no such template";
    EXPECT_EQ(-1, CScriptedDialog(IDD_BROKEN, host).DoModal()) << "a control of no known class";
    EXPECT_TRUE(IsEnabled(host));
}

TEST(Dialog, Quit_EndsWithoutResult) {
    HostWindow host;
    CScriptedDialog dialog(IDD_PLAIN, host);
    dialog.m_script = [](CScriptedDialog&) { ::PostQuitMessage(12); };
    EXPECT_EQ(-1, dialog.DoModal());
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
        << "it is for the program's own loop";
    EXPECT_EQ(0u, msg.wParam) << "the exit code is lost";
    EXPECT_TRUE(IsEnabled(host));
}

#ifndef VARNOKE_MFC_DLL // whose loop outlives the dialog's window
TEST(Dialog, Destroyed_EndsWithoutResult) {
    HostWindow host;
    CScriptedDialog dialog(IDD_PLAIN, host);
    dialog.m_script = [](CScriptedDialog& d) { d.DestroyWindow(); };
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_TRUE(IsEnabled(host));
}
#endif

TEST(Dialog, FailingHandlers_LeaveTheDialogRunning) {
    CScriptedDialog dialog;
    int nRuns = 0;
    dialog.m_init = [](CScriptedDialog&) { AfxThrowResourceException(); };
    dialog.m_script = [&](CScriptedDialog& d) {
        if (++nRuns == 2) return d.EndDialog(3);
        d.PostMessage(WM_RUN_SCRIPT);
        AfxThrowMemoryException();
    };
    EXPECT_EQ(3, dialog.DoModal());
    EXPECT_TRUE(dialog.m_bWasVisible);
}

namespace {

class CExchangeDialog : public CScriptedDialog {
public:
    CEdit m_name;
    int m_nMissing = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, IDC_NAME, m_name);
        if (m_nMissing != 0) pDX->PrepareCtrl(m_nMissing);
    }
};

} // namespace

TEST(Dialog, DataExchange_MissingControlIsRefused) {
    CExchangeDialog dialog;
    dialog.m_script = [&](CScriptedDialog& d) {
        EXPECT_EQ(dialog.m_name.m_hWnd, ::GetDlgItem(d, IDC_NAME));
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
