// Window objects: attachment, subclassing, failing handlers.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace {

const UINT WM_ECHO = WM_APP + 10, WM_FAIL = WM_APP + 11, WM_FAIL_HARD = WM_APP + 12;

int g_liveErrors = 0;

class CCountedError : public CException {
public:
    CCountedError() { ++g_liveErrors; }
    ~CCountedError() override { --g_liveErrors; }
};

class CEchoEdit : public CEdit {
public:
    bool m_bToldBefore = false;
    int m_nDestroyed = 0;
    bool m_bSawCreate = false;

protected:
    void PreSubclassWindow() override { m_bToldBefore = m_hWnd != nullptr; }
    void PostNcDestroy() override { ++m_nDestroyed; }
    afx_msg LRESULT OnEcho(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    afx_msg LRESULT OnFail(WPARAM, LPARAM) { throw new CCountedError; }
    afx_msg LRESULT OnFailHard(WPARAM, LPARAM) { throw std::runtime_error("not the framework's"); }
    afx_msg LRESULT OnCreate(WPARAM, LPARAM) {
        m_bSawCreate = true;
        return Default();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CEchoEdit, CEdit)
    ON_MESSAGE(WM_ECHO, &CEchoEdit::OnEcho)
    ON_MESSAGE(WM_FAIL, &CEchoEdit::OnFail)
    ON_MESSAGE(WM_FAIL_HARD, &CEchoEdit::OnFailHard)
    ON_MESSAGE(WM_CREATE, &CEchoEdit::OnCreate)
END_MESSAGE_MAP()

HWND NewEdit() {
    return ::CreateWindowEx(0, _T("EDIT"), _T("text"), WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, nullptr,
                            nullptr);
}

} // namespace

TEST(Window, Subclass_RoutesMessagesAndGivesThemBack) {
    const HWND hWnd = NewEdit();
    const LONG_PTR procedure = ::GetWindowLongPtr(hWnd, GWLP_WNDPROC);
    CEchoEdit edit, second;
    ASSERT_TRUE(edit.SubclassWindow(hWnd));
    EXPECT_TRUE(edit.m_bToldBefore);
    EXPECT_FALSE(second.SubclassWindow(hWnd));
    EXPECT_EQ(nullptr, second.m_hWnd);
    EXPECT_EQ(&edit, CWnd::FromHandle(hWnd));
    CWnd* pElsewhere = &edit;
    std::thread([&] { pElsewhere = CWnd::FromHandlePermanent(hWnd); }).join();
    EXPECT_EQ(nullptr, pElsewhere) << "objects belong to their thread";

    EXPECT_EQ(7, ::SendMessage(hWnd, WM_ECHO, 3, 4));
    CString text;
    edit.GetWindowText(text); // goes on to the control's own procedure
    EXPECT_STREQ(L"text", text);

    EXPECT_EQ(hWnd, edit.UnsubclassWindow());
    EXPECT_EQ(procedure, ::GetWindowLongPtr(hWnd, GWLP_WNDPROC));
    EXPECT_EQ(0, ::SendMessage(hWnd, WM_ECHO, 3, 4));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    ASSERT_TRUE(second.SubclassWindow(hWnd));
    ::DestroyWindow(hWnd);
    EXPECT_EQ(nullptr, second.m_hWnd);
    EXPECT_EQ(1, second.m_nDestroyed);
}

TEST(Window, Destructor_DestroysItsWindowButNotALentOne) {
    const HWND hOwned = NewEdit(), hLent = NewEdit();
    {
        CWnd wnd;
        wnd.Attach(hOwned);
    }
    EXPECT_FALSE(::IsWindow(hOwned));
    CWnd* pTemporary = CWnd::FromHandle(hLent);
    EXPECT_EQ(pTemporary, CWnd::FromHandle(hLent));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hLent));
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(hLent));
    ::DestroyWindow(hLent);
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr)->GetSafeHwnd());
}

TEST(Window, FailingHandler_IsStoppedAtTheWindowProcedure) {
    CEchoEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(NewEdit()));
    EXPECT_EQ(0, edit.SendMessage(WM_FAIL));
    EXPECT_EQ(0, g_liveErrors);
    EXPECT_EQ(0, edit.SendMessage(WM_FAIL_HARD));
    EXPECT_EQ(3, edit.SendMessage(WM_ECHO, 1, 2));
}

TEST(Window, CreateEx_OwnClassIsServedFromTheStart) {
    const CString windowClass = AfxRegisterWndClass(CS_HREDRAW);
    EXPECT_STREQ(windowClass, AfxRegisterWndClass(CS_HREDRAW));
    for (const wchar_t* name : {windowClass.GetString(), L"EDIT"}) {
        CEchoEdit window;
        ASSERT_TRUE(window.CreateEx(0, name, _T("window"), WS_POPUP, 0, 0, 50, 50, nullptr, nullptr)) << name;
        EXPECT_EQ(windowClass == name, window.m_bSawCreate);
        EXPECT_EQ(3, window.SendMessage(WM_ECHO, 1, 2));
        EXPECT_TRUE(window.DestroyWindow());
        EXPECT_EQ(1, window.m_nDestroyed);
        EXPECT_FALSE(window.CreateEx(0, _T("no such class"), name, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    }
}
