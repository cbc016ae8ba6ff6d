// Modal dialogs: how they run, end, and treat their owner.
#include "tests/framework/ScriptedDialog.h"

#include <gtest/gtest.h>

#include "tests/support/HostWindow.h"

namespace {

class Dialog : public testing::Test {
protected:
    ~Dialog() override { EXPECT_TRUE(::IsWindowEnabled(host())); }
    HWND host() { return m_host.Window()->m_hWnd; }

    tests::HostWindow m_host;
};

} // namespace

TEST_F(Dialog, Owner_IsDisabledWhileTheDialogRuns) {
    CWnd child; // stands for its top-level window
    child.Attach(
        ::CreateWindowEx(0, _T("STATIC"), nullptr, WS_CHILD, 0, 0, 9, 9, host(), nullptr, nullptr, nullptr));
    // Without a parent, the active window is meant.
    for (CWnd* pParent : {static_cast<CWnd*>(nullptr), &child}) {
        CScriptedDialog dialog(IDD_PLAIN, pParent);
        dialog.m_script = [&](CScriptedDialog& d) {
            EXPECT_FALSE(::IsWindowEnabled(host()));
            EXPECT_EQ(host(), ::GetWindow(d, GW_OWNER));
            CRect rect, owner;
            d.GetWindowRect(rect);
            m_host.Window()->GetWindowRect(owner);
            EXPECT_NEAR(owner.left + owner.right, rect.left + rect.right, 2) << "centred";
            EXPECT_NEAR(owner.top + owner.bottom, rect.top + rect.bottom, 2) << "centred";
            EXPECT_EQ(::GetDlgItem(d, IDC_NAME), ::GetFocus());
            ::PostMessage(::GetFocus(), WM_KEYDOWN, pParent ? VK_RETURN : VK_ESCAPE, 0);
        };
        m_host.Window()->EnableWindow(!pParent); // enabled afterwards even if it was not before
        EXPECT_EQ(pParent ? IDOK : IDCANCEL, dialog.DoModal());
        EXPECT_EQ(nullptr, dialog.m_hWnd);
        EXPECT_EQ(host(), ::GetActiveWindow());
    }
}

TEST_F(Dialog, WithoutItsTemplate_EndsWithoutResult) {
    EXPECT_EQ(-1, CScriptedDialog(999, m_host).DoModal());
}

TEST_F(Dialog, Quit_EndsItAndTheProgramsOwnLoop) {
    CScriptedDialog dialog(IDD_PLAIN, m_host);
    dialog.m_script = [](CScriptedDialog&) { ::PostQuitMessage(12); };
    EXPECT_EQ(-1, dialog.DoModal());
    MSG msg = {};
    EXPECT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && msg.wParam == 0)
        << "without the exit code";
}
