// Window objects: attachment, subclassing, failing handlers.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

const UINT WM_ECHO = WM_APP + 10, WM_FAIL = WM_APP + 11;

int g_liveErrors = 0;

class CCountedError : public CException {
public:
    CCountedError() { ++g_liveErrors; }
    ~CCountedError() override { --g_liveErrors; }
};

class CEchoEdit : public CEdit {
protected:
    afx_msg LRESULT OnEcho(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    afx_msg LRESULT OnFail(WPARAM, LPARAM) { throw new CCountedError; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CEchoEdit, CEdit)
    ON_MESSAGE(WM_ECHO, &CEchoEdit::OnEcho)
    ON_MESSAGE(WM_FAIL, &CEchoEdit::OnFail)
END_MESSAGE_MAP()

HWND NewEdit() {
    return ::CreateWindowEx(0, _T("EDIT"), _T("text"), WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, nullptr,
                            nullptr);
}

} // namespace

TEST(Window, Subclass_RoutesMessagesUntilTheWindowEnds) {
    const HWND hWnd = NewEdit();
    CEchoEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(hWnd));
    EXPECT_EQ(&edit, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(7, ::SendMessage(hWnd, WM_ECHO, 3, 4));
    CString text;
    edit.GetWindowText(text); // goes on to the control's own procedure
    EXPECT_STREQ(L"text", text);

    ::DestroyWindow(hWnd);
    EXPECT_EQ(nullptr, edit.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
}

TEST(Window, Destructor_DestroysTheWindowUnlessDetached) {
    const HWND hOwned = NewEdit(), hLent = NewEdit();
    {
        CWnd owner, borrower;
        owner.Attach(hOwned);
        borrower.Attach(hLent);
        EXPECT_EQ(hLent, borrower.Detach());
    }
    EXPECT_FALSE(::IsWindow(hOwned));
    EXPECT_TRUE(::IsWindow(hLent));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hLent)->GetSafeHwnd());
    ::DestroyWindow(hLent);
}

TEST(Window, FailingHandler_IsStoppedAtTheWindowProcedure) {
    CEchoEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(NewEdit()));
    EXPECT_EQ(0, edit.SendMessage(WM_FAIL));
    EXPECT_EQ(0, g_liveErrors);
    EXPECT_EQ(3, edit.SendMessage(WM_ECHO, 1, 2));
}
