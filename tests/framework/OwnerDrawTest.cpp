// An owner-drawn combo box is reached through its parent and takes its own notifications.
#include "tests/framework/ScriptedDialog.h"

#include <gtest/gtest.h>

namespace {

class CSwatchCombo : public CComboBox {
public:
    int m_nChosen = 0;
    COLORREF m_clrDrawn = CLR_INVALID;

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override {
        const RECT& rect = lpDrawItemStruct->rcItem;
        ::FillRect(lpDrawItemStruct->hDC, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
        m_clrDrawn = ::GetPixel(lpDrawItemStruct->hDC, rect.left + 1, rect.top + 1);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override {
        lpMeasureItemStruct->itemHeight = 31;
    }

protected:
    afx_msg void OnSelEndOk() { ++m_nChosen; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSwatchCombo, CComboBox)
    ON_CONTROL_REFLECT(CBN_SELENDOK, &CSwatchCombo::OnSelEndOk)
END_MESSAGE_MAP()

void Notify(CWnd& combo, WORD code) {
    combo.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(combo.GetDlgCtrlID(), code),
                                   reinterpret_cast<LPARAM>(combo.m_hWnd));
}

} // namespace

TEST(OwnerDraw, Combo_DrawsItemsAndHearsItsOwnNotification) {
    CScriptedDialog dialog;
    CSwatchCombo combo;
    dialog.m_init = [&](CScriptedDialog& d) {
        ASSERT_TRUE(combo.SubclassDlgItem(IDC_COLORS, &d));
        MEASUREITEMSTRUCT measure = {ODT_COMBOBOX, IDC_COLORS, 0, 0, 0, 0};
        EXPECT_EQ(TRUE, d.SendMessage(WM_MEASUREITEM, IDC_COLORS, reinterpret_cast<LPARAM>(&measure)));
        EXPECT_EQ(31u, measure.itemHeight);
        EXPECT_EQ(0, combo.AddString(_T("green")));
        EXPECT_EQ(0, combo.InsertString(0, _T("greenish")));
        combo.SetItemData(0, 5);
    };
    dialog.m_script = [&](CScriptedDialog& d) {
        EXPECT_EQ(1, combo.FindStringExact(-1, _T("GREEN"))) << "whole text, any case";
        combo.SetCurSel(0);
        combo.UpdateWindow();
        Notify(combo, CBN_SELENDOK);
        Notify(combo, CBN_CLOSEUP);
        CString text;
        combo.GetLBText(0, text);
        EXPECT_STREQ(L"greenish", text);
        EXPECT_EQ(5u, combo.GetItemData(0));
        EXPECT_THROW(combo.GetLBText(7, text), CInvalidArgException*);
        d.EndDialog(1);
    };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_EQ(RGB(0, 0, 0), combo.m_clrDrawn);
    EXPECT_EQ(1, combo.m_nChosen);
}
