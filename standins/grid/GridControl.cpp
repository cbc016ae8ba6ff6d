// The grid control's window and what QORGrid.dll serves.
#include "standins/grid/GridControl.h"

#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "neighbours/QORGridIds.h"

namespace grid {

const CLSID& GridControl::ClassId() const {
    return varnoke::kQORGridClass;
}

LRESULT GridControl::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        m_view.Create(window);
        return m_view.List() ? 0 : -1;
    case WM_DESTROY:
        m_view.Forget();
        return 0;
    case WM_SIZE:
        m_view.Resize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_SETFOCUS:
        ::SetFocus(m_view.List());
        return 0;
    case WM_NOTIFY:
        return m_view.OnNotify(reinterpret_cast<NMHDR*>(lParam));
    default:
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

// For a container that shows no window: the cells' texts in their columns.
void GridControl::DrawContent(HDC dc, const RECT& bounds) {
    ::FillRect(dc, &bounds, ::GetSysColorBrush(COLOR_WINDOW));
    TEXTMETRICW metrics = {};
    ::GetTextMetricsW(dc, &metrics);
    RECT line = bounds;
    for (int row = -1; row < m_model.RowCount() && line.top < bounds.bottom;
         ++row, line.top += metrics.tmHeight) {
        line.left = bounds.left;
        for (int column = 0; column < m_model.ColumnCount(); ++column) {
            const Column& shown = m_model.ColumnAt(column);
            const std::wstring& text = row < 0 ? shown.header : m_model.CellText(row, column);
            line.right = line.left + shown.width;
            ::DrawTextW(dc, text.c_str(), -1, &line, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
            line.left = line.right;
        }
    }
}

} // namespace grid

std::vector<standins::ServedClass> standins::ServedClasses() {
    return {
        {varnoke::kQORGridClass, L"QORGrid.Grid", L"Grid control", true, &MakeFactory<grid::GridControl>}};
}
