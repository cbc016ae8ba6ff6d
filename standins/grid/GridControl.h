// The grid control: its automation members over a grid model and its view.
#pragma once

#include "standins/common/OleControl.h"
#include "standins/grid/GridView.h"

namespace grid {

// The members are those of neighbours/QORGridIds.h. A row or column that does not exist gives
// DISP_E_BADINDEX. Sorting and fixed rows and columns are not offered: their members take 0 only.
class GridControl final : public standins::OleControl {
public:
    GridControl() : m_view(m_model, m_look) {}

protected:
    const base::DispatchTable& Members() const override;
    const CLSID& ClassId() const override;
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    using Arguments = base::Arguments;

    HRESULT GetRowCount(Arguments& arguments, VARIANT& result);
    HRESULT PutColumnCount(Arguments& arguments, VARIANT& result);
    HRESULT PutShowHeader(Arguments& arguments, VARIANT& result);
    HRESULT SetCellText(Arguments& arguments, VARIANT& result);
    HRESULT GetCellText(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnText(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnWidth(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnEditor(Arguments& arguments, VARIANT& result);
    HRESULT SetColumnKind(Arguments& arguments, VARIANT& result);
    HRESULT SetSelectionMode(Arguments& arguments, VARIANT& result);
    HRESULT SetGridLines(Arguments& arguments, VARIANT& result);
    HRESULT TakeZero(Arguments& arguments, VARIANT& result);
    HRESULT AppendRow(Arguments& arguments, VARIANT& result);
    HRESULT GetRowValue(Arguments& arguments, VARIANT& result);
    HRESULT SetRowValue(Arguments& arguments, VARIANT& result);

    GridModel m_model;
    GridLook m_look;
    GridView m_view;
};

} // namespace grid
