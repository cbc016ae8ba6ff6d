// The grid control's automation members.
#include "base/Text.h"
#include "standins/grid/GridControl.h"
#include "neighbours/QORGridIds.h"

using namespace base;
using namespace standins;

namespace grid {

// More rows or columns than this are a caller's mistake.
constexpr long kMostRows = 1000000;
constexpr long kMostColumns = 1000;

template <HRESULT (GridControl::*Method)(Arguments&, VARIANT&)>
constexpr auto kCall = &Forward<GridControl, Method>;

const DispatchTable& GridControl::Members() const {
    using namespace varnoke;
    constexpr WORD kMethod = DISPATCH_METHOD, kGet = DISPATCH_PROPERTYGET, kPut = DISPATCH_PROPERTYPUT;
    static const DispatchTable members = {
        {kGridRowCount, L"RowCount", kGet, "", kCall<&GridControl::GetRowCount>},
        {kGridColumnCount, L"ColumnCount", kPut, "I", kCall<&GridControl::PutColumnCount>},
        {kGridSortable, L"Sortable", kPut, "I", kCall<&GridControl::TakeZero>},
        {kGridShowHeader, L"ShowHeader", kPut, "I", kCall<&GridControl::PutShowHeader>},
        {kGridSetCellText, L"SetCellText", kMethod, "IIS", kCall<&GridControl::SetCellText>},
        {kGridGetCellText, L"GetCellText", kMethod, "II", kCall<&GridControl::GetCellText>},
        {kGridSetColumnText, L"SetColumnText", kMethod, "IS", kCall<&GridControl::SetColumnText>},
        {kGridSetColumnWidth, L"SetColumnWidth", kMethod, "II", kCall<&GridControl::SetColumnWidth>},
        {kGridSetColumnEditor, L"SetColumnEditor", kMethod, "IS", kCall<&GridControl::SetColumnEditor>},
        {kGridSetSelectionMode, L"SetSelectionMode", kMethod, "I", kCall<&GridControl::SetSelectionMode>},
        {kGridSetFixedColumns, L"SetFixedColumns", kMethod, "I", kCall<&GridControl::TakeZero>},
        {kGridSetFixedRows, L"SetFixedRows", kMethod, "I", kCall<&GridControl::TakeZero>},
        {kGridAppendRow, L"AppendRow", kMethod, "", kCall<&GridControl::AppendRow>},
        {kGridRowValue, L"RowValue", kMethod, "I", kCall<&GridControl::GetRowValue>},
        {kGridRowValue, L"RowValue", kMethod, "II", kCall<&GridControl::SetRowValue>},
        {kGridSetColumnKind, L"SetColumnKind", kMethod, "II", kCall<&GridControl::SetColumnKind>},
        {kGridSetGridLines, L"SetGridLines", kMethod, "I", kCall<&GridControl::SetGridLines>},
    };
    return members;
}

HRESULT GridControl::GetRowCount(Arguments&, VARIANT& result) {
    return GiveLong(result, m_model.RowCount());
}

HRESULT GridControl::AppendRow(Arguments&, VARIANT&) {
    if (m_model.RowCount() >= kMostRows) return E_INVALIDARG;
    m_model.AppendRow();
    m_view.ShowRows();
    return S_OK;
}

HRESULT GridControl::PutColumnCount(Arguments& arguments, VARIANT&) {
    const long count = arguments[0].lVal;
    if (count < 0 || count > kMostColumns) return E_INVALIDARG;
    m_model.SetColumnCount(count);
    m_view.ShowColumns();
    return S_OK;
}

HRESULT GridControl::PutShowHeader(Arguments& arguments, VARIANT&) {
    m_look.showHeader = arguments[0].lVal != 0;
    m_view.ShowLook();
    return S_OK;
}

HRESULT GridControl::SetSelectionMode(Arguments& arguments, VARIANT&) {
    if (arguments[0].lVal != 0 && arguments[0].lVal != 1) return E_INVALIDARG;
    m_look.selectRows = arguments[0].lVal == 1;
    m_view.ShowLook();
    return S_OK;
}

HRESULT GridControl::SetGridLines(Arguments& arguments, VARIANT&) {
    m_look.showLines = arguments[0].lVal != 0;
    m_view.ShowLook();
    return S_OK;
}

HRESULT GridControl::TakeZero(Arguments& arguments, VARIANT&) {
    return arguments[0].lVal == 0 ? S_OK : E_NOTIMPL;
}

HRESULT GridControl::SetCellText(Arguments& arguments, VARIANT&) {
    const long row = arguments[0].lVal, column = arguments[1].lVal;
    if (!m_model.HasCell(row, column)) return DISP_E_BADINDEX;
    m_model.SetCellText(row, column, BstrText(arguments[2]));
    m_view.ShowRow(row);
    return S_OK;
}

HRESULT GridControl::GetCellText(Arguments& arguments, VARIANT& result) {
    const long row = arguments[0].lVal, column = arguments[1].lVal;
    return m_model.HasCell(row, column) ? GiveText(result, m_model.CellText(row, column)) : DISP_E_BADINDEX;
}

HRESULT GridControl::SetColumnText(Arguments& arguments, VARIANT&) {
    if (!m_model.HasColumn(arguments[0].lVal)) return DISP_E_BADINDEX;
    m_model.ColumnAt(arguments[0].lVal).header = BstrText(arguments[1]);
    m_view.ShowColumns();
    return S_OK;
}

HRESULT GridControl::SetColumnWidth(Arguments& arguments, VARIANT&) {
    if (!m_model.HasColumn(arguments[0].lVal)) return DISP_E_BADINDEX;
    if (arguments[1].lVal < 0) return E_INVALIDARG;
    m_model.ColumnAt(arguments[0].lVal).width = static_cast<int>(arguments[1].lVal);
    m_view.ShowColumns();
    return S_OK;
}

HRESULT GridControl::SetColumnEditor(Arguments& arguments, VARIANT&) {
    if (!m_model.HasColumn(arguments[0].lVal)) return DISP_E_BADINDEX;
    const std::wstring plugIn = BstrText(arguments[1]);
    const bool isCheckEditor = base::SameText(plugIn, L"QORCheckBoxEdit.dll");
    if (!plugIn.empty() && !isCheckEditor) return E_INVALIDARG;
    m_model.ColumnAt(arguments[0].lVal).hasCheckEditor = isCheckEditor;
    m_view.ShowRows();
    return S_OK;
}

HRESULT GridControl::SetColumnKind(Arguments& arguments, VARIANT&) {
    const long kind = arguments[1].lVal;
    if (!m_model.HasColumn(arguments[0].lVal)) return DISP_E_BADINDEX;
    if (kind != varnoke::kGridColumnText && kind != varnoke::kGridColumnCheck) return E_INVALIDARG;
    m_model.ColumnAt(arguments[0].lVal).isCheckKind = kind == varnoke::kGridColumnCheck;
    m_view.ShowRows();
    return S_OK;
}

HRESULT GridControl::GetRowValue(Arguments& arguments, VARIANT& result) {
    const long row = arguments[0].lVal;
    return m_model.HasRow(row) ? GiveLong(result, m_model.RowValue(row)) : DISP_E_BADINDEX;
}

HRESULT GridControl::SetRowValue(Arguments& arguments, VARIANT&) {
    if (!m_model.HasRow(arguments[0].lVal)) return DISP_E_BADINDEX;
    m_model.SetRowValue(arguments[0].lVal, arguments[1].lVal);
    return S_OK;
}

} // namespace grid
