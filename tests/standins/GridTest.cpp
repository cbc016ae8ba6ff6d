// The grid control in a container window: members, check boxes by mouse and keyboard, size, lifetime.
#include <windows.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/standins/HostedControl.h"
#include "ui/QORGridIds.h"

using namespace varnoke;
using tests::HostedControl;

namespace {

class Grid : public testing::Test {
protected:
    HRESULT Call(DISPID id, std::vector<_variant_t> arguments, _variant_t* result = nullptr) {
        return m_host.Invoke(id, DISPATCH_METHOD, std::move(arguments), result);
    }
    HRESULT Put(DISPID id, std::vector<_variant_t> arguments) {
        return m_host.Invoke(id, DISPATCH_PROPERTYPUT, std::move(arguments));
    }
    long Get(DISPID id, std::vector<_variant_t> arguments = {}) {
        _variant_t result;
        EXPECT_EQ(S_OK, m_host.Invoke(id, DISPATCH_PROPERTYGET, std::move(arguments), &result));
        EXPECT_EQ(VT_I4, result.vt);
        return result.lVal;
    }
    std::wstring Cell(long row, long column) {
        _variant_t result;
        EXPECT_EQ(S_OK, Call(kGridGetCellText, {row, column}, &result));
        return result.vt == VT_BSTR ? std::wstring(result.bstrVal, SysStringLen(result.bstrVal)) : L"<none>";
    }
    HWND List() const { return GetWindow(m_host.Window(), GW_CHILD); }
    // Three columns, the second with check boxes, and two rows that are checked.
    void Fill() {
        ASSERT_EQ(S_OK, Put(kGridColumnCount, {3L}));
        const wchar_t* headers[] = {L"序号", L"选择状态", L"文件名"};
        for (long column = 0; column < 3; ++column) {
            EXPECT_EQ(S_OK, Call(kGridSetColumnText, {column, headers[column]}));
            EXPECT_EQ(S_OK, Call(kGridSetColumnWidth, {column, 100L}));
        }
        EXPECT_EQ(S_OK, Call(kGridSetColumnEditor, {1L, L"QORCheckBoxEdit.dll"}));
        EXPECT_EQ(S_OK, Call(kGridSetColumnKind, {1L, long(kGridColumnCheck)}));
        for (long row = 0; row < 2; ++row) {
            EXPECT_EQ(S_OK, Call(kGridAppendRow, {}));
            EXPECT_EQ(S_OK, Call(kGridSetCellText, {row, 1L, L"1"}));
        }
    }

    HostedControl m_host{kQORGridClass};
};

TEST_F(Grid, Members_KeepRowsCellsAndValues) {
    Fill();
    EXPECT_EQ(2, Get(kGridRowCount));
    EXPECT_EQ(3, Get(kGridColumnCount));
    EXPECT_EQ(S_OK, Call(kGridSetCellText, {1L, 2L, L"图纸.dwg"}));
    EXPECT_EQ(L"图纸.dwg", Cell(1, 2));
    EXPECT_EQ(L"", Cell(0, 2));
    EXPECT_EQ(S_OK, Put(kGridRowValue, {1L, -7L}));
    EXPECT_EQ(-7, Get(kGridRowValue, {1L}));
    EXPECT_EQ(0, Get(kGridRowValue, {0L}));
    EXPECT_EQ(S_OK, Put(kGridRowCount, {1L}));
    EXPECT_EQ(S_OK, Put(kGridRowCount, {2L}));
    EXPECT_EQ(L"", Cell(1, 2));
    for (const DISPID member : {kGridSortable, kGridShowHeader}) {
        EXPECT_EQ(S_OK, Put(member, {1L}));
        EXPECT_EQ(1, Get(member));
        EXPECT_EQ(S_OK, Put(member, {0L}));
        EXPECT_EQ(0, Get(member));
    }
    for (const DISPID member :
         {kGridSetSelectionMode, kGridSetFixedColumns, kGridSetFixedRows, kGridSetGridLines})
        EXPECT_EQ(S_OK, Call(member, {0L})) << member;
}

TEST_F(Grid, Members_RefuseWhatDoesNotExist) {
    Fill();
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridSetCellText, {2L, 0L, L"x"}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridGetCellText, {0L, 3L}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridGetCellText, {-1L, 0L}));
    EXPECT_EQ(DISP_E_BADINDEX, Put(kGridRowValue, {2L, 1L}));
    EXPECT_EQ(DISP_E_BADINDEX, Call(kGridSetColumnText, {3L, L"x"}));
    EXPECT_EQ(E_INVALIDARG, Put(kGridRowCount, {-1L}));
    EXPECT_EQ(E_INVALIDARG, Call(kGridSetColumnEditor, {0L, L"OtherEdit.dll"}));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, Call(kGridSetCellText, {0L, 0L}));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, Call(kGridGetCellText, {L"first", 0L}));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, Call(kGridRowCount, {}));
    EXPECT_EQ(2, Get(kGridRowCount));
}

TEST_F(Grid, View_ShowsModelWithHeaders) {
    Fill();
    ASSERT_TRUE(List());
    EXPECT_EQ(2, ListView_GetItemCount(List()));
    wchar_t text[32] = {};
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = text;
    column.cchTextMax = 32;
    ASSERT_TRUE(SendMessageW(List(), LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column)));
    EXPECT_STREQ(L"选择状态", text);
    EXPECT_EQ(100, column.cx);
    EXPECT_EQ(S_OK, Call(kGridSetCellText, {0L, 2L, L"图纸.dwg"}));
    LVITEMW item = {};
    item.iSubItem = 2;
    item.pszText = text;
    item.cchTextMax = 32;
    SendMessageW(List(), LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(L"图纸.dwg", text);
}

TEST_F(Grid, CheckBox_TogglesByMouseAndSpace) {
    Fill();
    RECT cell = {};
    ListView_GetSubItemRect(List(), 1, 1, LVIR_BOUNDS, &cell);
    const LPARAM point = MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
    PostMessageW(List(), WM_LBUTTONUP, 0, point);
    SendMessageW(List(), WM_LBUTTONDOWN, MK_LBUTTON, point);
    HostedControl::Pump();
    EXPECT_EQ(L"1", Cell(0, 1));
    EXPECT_EQ(L"0", Cell(1, 1));

    ListView_SetItemState(List(), 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
    SendMessageW(List(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(L"0", Cell(0, 1));
    SendMessageW(List(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(L"1", Cell(0, 1));
    EXPECT_EQ(L"", Cell(0, 2));
}

TEST_F(Grid, Window_FollowsContainer) {
    MoveWindow(m_host.Container(), 0, 0, 400, 200, TRUE);
    HostedControl::Pump();
    for (const HWND window : {m_host.Window(), List()}) {
        RECT bounds = {};
        GetWindowRect(window, &bounds);
        EXPECT_EQ(400, bounds.right - bounds.left);
        EXPECT_EQ(200, bounds.bottom - bounds.top);
    }
}

TEST_F(Grid, Sort_MovesWholeRows) {
    Fill();
    for (long row = 0; row < 2; ++row) {
        Call(kGridSetCellText, {row, 2L, row ? L"a" : L"b"});
        Put(kGridRowValue, {row, row + 10});
    }
    NMLISTVIEW click = {};
    click.hdr = {List(), 0, static_cast<UINT>(LVN_COLUMNCLICK)};
    click.iSubItem = 2;
    SendMessageW(m_host.Window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
    EXPECT_EQ(L"b", Cell(0, 2));
    Put(kGridSortable, {1L});
    SendMessageW(m_host.Window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&click));
    EXPECT_EQ(L"a", Cell(0, 2));
    EXPECT_EQ(11, Get(kGridRowValue, {0L}));
}

TEST(GridLifetime, UnloadsWithItsHostAndWorksWithoutOne) {
    const auto canUnload = [] {
        return reinterpret_cast<HRESULT(WINAPI*)()>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"QORGrid.dll"), "DllCanUnloadNow")))();
    };
    { HostedControl host(kQORGridClass); }
    EXPECT_EQ(S_OK, canUnload());
    tests::DispatchPtr bare;
    ASSERT_EQ(S_OK, CoCreateInstance(kQORGridClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                     reinterpret_cast<void**>(&bare)));
    DISPPARAMS none = {};
    _variant_t result;
    EXPECT_EQ(S_OK,
              bare->Invoke(kGridAppendRow, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr));
    EXPECT_EQ(S_OK, bare->Invoke(kGridRowCount, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &result, nullptr,
                                 nullptr));
    EXPECT_EQ(1, result.lVal);
    EXPECT_EQ(S_FALSE, canUnload());
    bare = nullptr;
    EXPECT_EQ(S_OK, canUnload());
}

} // namespace
