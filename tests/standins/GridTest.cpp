// The grid control in a container window: members, check boxes by mouse and keyboard, size.
#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/standins/HostedControl.h"
#include "neighbours/QORGridIds.h"

using namespace varnoke;
using namespace tests;

namespace {

class Grid : public testing::Test {
protected:
    // Three columns, the second with check boxes, and two rows that are checked.
    Grid() {
        EXPECT_EQ(S_OK, Put(kGridColumnCount, {3L}));
        for (long column = 0; column < 3; ++column)
            EXPECT_EQ(S_OK, Call(kGridSetColumnWidth, {column, 100L}));
        EXPECT_EQ(S_OK, Call(kGridSetColumnEditor, {1L, L"QORCheckBoxEdit.dll"}));
        EXPECT_EQ(S_OK, Call(kGridSetColumnKind, {1L, long(kGridColumnCheck)}));
        for (long row = 0; row < 2; ++row) {
            EXPECT_EQ(S_OK, Call(kGridAppendRow, {}));
            EXPECT_EQ(S_OK, Call(kGridSetCellText, {row, 1L, L"1"}));
        }
    }

    HRESULT Call(DISPID id, std::vector<_variant_t> arguments, _variant_t* result = nullptr) {
        return Invoke(m_host.m_control, id, DISPATCH_METHOD, std::move(arguments), result);
    }
    HRESULT Put(DISPID id, std::vector<_variant_t> arguments) {
        return Invoke(m_host.m_control, id, DISPATCH_PROPERTYPUT, std::move(arguments));
    }
    std::wstring Cell(long row, long column) {
        _variant_t result;
        EXPECT_EQ(S_OK, Call(kGridGetCellText, {row, column}, &result));
        return result.vt == VT_BSTR ? std::wstring(result.bstrVal, SysStringLen(result.bstrVal)) : L"<none>";
    }
    HWND List() const { return GetWindow(m_host.Window(), GW_CHILD); }

    HostedControl m_host{kQORGridClass};
};

TEST_F(Grid, Members_RefuseWhatDoesNotExist) {
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridSetCellText, {2L, 0L, L"x"}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridGetCellText, {0L, 3L}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridGetCellText, {-1L, 0L}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridRowValue, {2L, 1L}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridSetColumnText, {3L, L"x"}));
    EXPECT_EQ(E_INVALIDARG, Put(kGridRowCount, {-1L}));
    EXPECT_EQ(E_INVALIDARG, Call(kGridSetColumnEditor, {0L, L"OtherEdit.dll"}));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, Call(kGridSetCellText, {0L, 0L}));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, Call(kGridGetCellText, {L"first", 0L}));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Call(kGridRowCount, {}));
    EXPECT_EQ(2, ListView_GetItemCount(List()));
}

TEST_F(Grid, View_ShowsModelAndFollowsContainer) {
    wchar_t cell[32] = {};
    EXPECT_EQ(S_OK, Call(kGridSetCellText, {0L, 2L, L"图纸.dwg"}));
    ListView_GetItemText(List(), 0, 2, cell, 32);
    EXPECT_STREQ(L"图纸.dwg", cell);

    MoveWindow(m_host.m_container, 0, 0, 400, 200, TRUE);
    Pump();
    for (const HWND window : {m_host.Window(), List()}) {
        RECT bounds = {};
        GetWindowRect(window, &bounds);
        EXPECT_TRUE(bounds.right - bounds.left == 400 && bounds.bottom - bounds.top == 200);
    }
}

TEST_F(Grid, CheckBox_TogglesByMouseAndSpace) {
    RECT cell = {};
    ListView_GetSubItemRect(List(), 1, 1, LVIR_BOUNDS, &cell);
    const LPARAM point = MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
    PostMessageW(List(), WM_LBUTTONUP, 0, point);
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, point);
    Pump();
    EXPECT_EQ(L"1 0", Cell(0, 1) + L" " + Cell(1, 1));
    ListView_SetItemState(List(), 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    for (const wchar_t* expected : {L"0", L"1"}) {
        SendMessageW(List(), WM_KEYDOWN, VK_SPACE, 0);
        EXPECT_EQ(expected, Cell(0, 1));
    }
}

} // namespace
