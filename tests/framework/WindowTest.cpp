// Window objects: attachment, subclassing, reflection, failing handlers.
#include "tests/framework/ScriptedDialog.h"

#include <gtest/gtest.h>

#include "tests/support/OtherThread.h"

namespace {

const UINT WM_ECHO = WM_APP + 10, WM_FAIL = WM_APP + 11;

int g_liveErrors = 0;

class CCountedError : public CException {
public:
    CCountedError() { ++g_liveErrors; }
    ~CCountedError() override { --g_liveErrors; }
};

class CEchoEdit : public CEdit {
public:
    bool m_bToldBefore = false;

protected:
    void PreSubclassWindow() override { m_bToldBefore = m_hWnd != nullptr; }
    afx_msg LRESULT OnEcho(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    afx_msg LRESULT OnFail(WPARAM, LPARAM) { throw new CCountedError; }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { m_nTimer = nIDEvent; }
    DECLARE_MESSAGE_MAP()

public:
    UINT_PTR m_nTimer = 0;
};

BEGIN_MESSAGE_MAP(CEchoEdit, CEdit)
    ON_WM_TIMER()
    ON_MESSAGE(WM_ECHO, &CEchoEdit::OnEcho)
    ON_MESSAGE(WM_FAIL, &CEchoEdit::OnFail)
END_MESSAGE_MAP()

class CSwatchCombo : public CComboBox {
public:
    int m_nChosen = 0;
    COLORREF m_clrDrawn = CLR_INVALID;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override {
        const RECT& rect = lpDrawItemStruct->rcItem;
        ::FillRect(lpDrawItemStruct->hDC, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
        m_clrDrawn = ::GetPixel(lpDrawItemStruct->hDC, rect.left + 1, rect.top + 1);
    }

protected:
    afx_msg void OnSelEndOk() { ++m_nChosen; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSwatchCombo, CComboBox)
    ON_CONTROL_REFLECT(CBN_SELENDOK, &CSwatchCombo::OnSelEndOk)
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
    EXPECT_TRUE(edit.m_bToldBefore);
    EXPECT_EQ(&edit, CWnd::FromHandlePermanent(hWnd));
    CWnd* pElsewhere = &edit;
    tests::OnOtherThread([&] { pElsewhere = CWnd::FromHandlePermanent(hWnd); });
    EXPECT_EQ(nullptr, pElsewhere) << "objects belong to their thread";

    EXPECT_EQ(7, ::SendMessage(hWnd, WM_ECHO, 3, 4));
    ::SendMessage(hWnd, WM_TIMER, 1ull << 40, 0);
    EXPECT_EQ(1ull << 40, edit.m_nTimer);
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

TEST(Window, Reflection_ReachesTheControlThroughItsParent) {
    CScriptedDialog dialog;
    CSwatchCombo combo;
    dialog.m_init = [&](CScriptedDialog& d) {
        ASSERT_TRUE(combo.SubclassWindow(::GetDlgItem(d, IDC_COLORS)));
        combo.AddString(_T("green"));
        combo.SetCurSel(0);
    };
    dialog.m_script = [&](CScriptedDialog& d) {
        combo.UpdateWindow();
        for (const WORD code : {CBN_SELENDOK, CBN_CLOSEUP})
            d.SendMessage(WM_COMMAND, MAKEWPARAM(IDC_COLORS, code), reinterpret_cast<LPARAM>(combo.m_hWnd));
        d.EndDialog(1);
    };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_EQ(RGB(0, 0, 0), combo.m_clrDrawn);
    EXPECT_EQ(1, combo.m_nChosen);
}
