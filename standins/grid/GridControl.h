// The grid control: its automation members over a grid model and its view.
#pragma once

#include "standins/common/OleControl.h"
#include "standins/grid/GridView.h"

namespace grid {

// The members are those of ui/QORGridIds.h. A row or column that does not exist gives DISP_E_BADINDEX. Fixed
// rows and columns are not offered: the only count that members 46 and 54 take is 0.
class GridControl final : public standins::OleControl {
public:
    GridControl() : m_view(m_model, m_look) {}

protected:
    const base::DispatchTable& Members() const override;
    const CLSID& ClassId() const override;
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawContent(HDC dc, const RECT& bounds) override;

private:
    using Arguments = base::Arguments;

    HRESULT GetRowCount(Arguments& arguments, VARIANT& result);
    HRESULT PutRowCount(Arguments& arguments, VARIANT& result);
    HRESULT GetColumnCount(Arguments& arguments, VARIANT& result);
    HRESULT PutColumnCount(Arguments& arguments, VARIANT& result);
    HRESULT GetSortable(Arguments& arguments, VARIANT& result);
    HRESULT PutSortable(Arguments& arguments, VARIANT& result);
    HRESULT GetShowHeader(Arguments& arguments, VARIANT& result);
    HRESULT PutShowHeader(Arguments& arguments, VARIANT& result);
    HRESULT SetCellText(Arguments& arguments, VARIANT& result);
    HRESULT GetCellText(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnText(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnWidth(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnEditor(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnKind(Arguments& arguments, VARIANT& result);
    HRESULT SetSelectionMode(Arguments& arguments, VARIANT& result);
    HRESULT SetFixedCount(Arguments& arguments, VARIANT& result);
    HRESULT SetGridLines(Arguments& arguments, VARIANT& result);
    HRESULT AppendRow(Arguments& arguments, VARIANT& result);
    HRESULT GetRowValue(Arguments& arguments, VARIANT& result);
    HRESULT SetRowValue(Arguments& arguments, VARIANT& result);

    HRESULT ResizeRows(long count);

    GridModel m_model;
    GridLook m_look;
    GridView m_view;
};

} // namespace grid
