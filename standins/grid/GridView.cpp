// The system's list view showing a grid model.
#include "standins/grid/GridView.h"

#include "base/Paths.h"

namespace grid {

void GridView::Create(HWND parent) {
    const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_LISTVIEW_CLASSES};
    ::InitCommonControlsEx(&classes);
    RECT client = {};
    ::GetClientRect(parent, &client);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS;
    m_list = ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr, style, 0, 0, client.right,
                               client.bottom, parent, nullptr, base::ThisModule(), nullptr);
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0))
        m_font.reset(::CreateFontIndirectW(&metrics.lfMessageFont));
    ::SendMessageW(m_list, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), FALSE);
    ShowLook();
    ShowColumns();
    ShowRows();
}

void GridView::Resize(int width, int height) const {
    if (m_list) ::MoveWindow(m_list, 0, 0, width, height, TRUE);
}

void GridView::ShowColumns() const {
    if (!m_list) return;
    while (ListView_DeleteColumn(m_list, 0)) {
    }
    for (int i = 0; i < m_model.ColumnCount(); ++i) {
        const Column& column = m_model.ColumnAt(i);
        LVCOLUMNW item = {};
        item.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        item.cx = column.width;
        item.iSubItem = i;
        item.pszText = const_cast<wchar_t*>(column.header.c_str());
        ::SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
    }
    ::InvalidateRect(m_list, nullptr, TRUE);
}

void GridView::ShowRows() const {
    if (!m_list) return;
    ListView_SetItemCountEx(m_list, m_model.RowCount(), LVSICF_NOSCROLL);
    ::InvalidateRect(m_list, nullptr, TRUE);
}

void GridView::ShowLook() const {
    if (!m_list) return;
    const LONG_PTR style =
        ::GetWindowLongPtrW(m_list, GWL_STYLE) & ~static_cast<LONG_PTR>(LVS_NOCOLUMNHEADER);
    ::SetWindowLongPtrW(m_list, GWL_STYLE, m_look.showHeader ? style : style | LVS_NOCOLUMNHEADER);
    const DWORD extended =
        (m_look.selectRows ? LVS_EX_FULLROWSELECT : 0) | (m_look.showLines ? LVS_EX_GRIDLINES : 0);
    ListView_SetExtendedListViewStyle(m_list, extended | LVS_EX_DOUBLEBUFFER);
    ::SetWindowPos(m_list, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    ::InvalidateRect(m_list, nullptr, TRUE);
}

void GridView::ShowRow(long row) const {
    if (m_list) ListView_RedrawItems(m_list, static_cast<int>(row), static_cast<int>(row));
}

LRESULT GridView::OnNotify(NMHDR* header) {
    if (header->hwndFrom != m_list) return 0;
    switch (header->code) {
    case LVN_GETDISPINFOW:
        GiveText(reinterpret_cast<NMLVDISPINFOW*>(header)->item);
        return 0;
    case NM_CUSTOMDRAW:
        return OnCustomDraw(*reinterpret_cast<NMLVCUSTOMDRAW*>(header));
    case NM_CLICK:
    case NM_DBLCLK:
        OnClick(*reinterpret_cast<NMITEMACTIVATE*>(header));
        return 0;
    case LVN_KEYDOWN:
        if (reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey == VK_SPACE) OnSpace();
        return 0;
    default:
        return 0;
    }
}

void GridView::GiveText(LVITEMW& item) const {
    if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0) return;
    item.pszText[0] = L'\0';
    if (!m_model.HasCell(item.iItem, item.iSubItem) || m_model.ColumnAt(item.iSubItem).IsCheck()) return;
    ::lstrcpynW(item.pszText, m_model.CellText(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
}

LRESULT GridView::OnCustomDraw(NMLVCUSTOMDRAW& draw) const {
    const int row = static_cast<int>(draw.nmcd.dwItemSpec);
    switch (draw.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        return m_model.HasCell(row, draw.iSubItem) && m_model.ColumnAt(draw.iSubItem).IsCheck()
                   ? CDRF_NOTIFYPOSTPAINT
                   : CDRF_DODEFAULT;
    case CDDS_ITEMPOSTPAINT | CDDS_SUBITEM:
        DrawCheckBox(draw);
        return CDRF_DODEFAULT;
    default:
        return CDRF_DODEFAULT;
    }
}

void GridView::DrawCheckBox(const NMLVCUSTOMDRAW& draw) const {
    const int row = static_cast<int>(draw.nmcd.dwItemSpec);
    RECT cell = {};
    ListView_GetSubItemRect(m_list, row, draw.iSubItem, LVIR_BOUNDS, &cell);
    // The bounds of column 0 are those of the whole row.
    if (draw.iSubItem == 0) cell.right = cell.left + ListView_GetColumnWidth(m_list, 0);
    const int size = ::GetSystemMetrics(SM_CXMENUCHECK);
    RECT box = {};
    box.left = (cell.left + cell.right - size) / 2;
    box.top = (cell.top + cell.bottom - size) / 2;
    box.right = box.left + size;
    box.bottom = box.top + size;
    const UINT state = m_model.IsChecked(row, draw.iSubItem) ? DFCS_CHECKED : 0;
    ::DrawFrameControl(draw.nmcd.hdc, &box, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_FLAT | state);
}

void GridView::OnClick(const NMITEMACTIVATE& click) {
    // With cell selection the notification names no item outside the first column.
    LVHITTESTINFO hit = {};
    hit.pt = click.ptAction;
    if (ListView_SubItemHitTest(m_list, &hit) >= 0) Toggle(hit.iItem, hit.iSubItem);
}

void GridView::OnSpace() {
    const int row = ListView_GetNextItem(m_list, -1, LVNI_FOCUSED);
    for (int column = 0; column < m_model.ColumnCount(); ++column)
        Toggle(row, column);
}

void GridView::Toggle(int row, int column) {
    if (!m_model.HasCell(row, column) || !m_model.ColumnAt(column).IsCheck()) return;
    m_model.Toggle(row, column);
    ShowRow(row);
}

} // namespace grid
