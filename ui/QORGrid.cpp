// The control is driven through its automation interface.
#include "ui/QORGrid.h"

#include "neighbours/QORGridIds.h"

using namespace varnoke;

namespace {

// Arguments of InvokeHelper, by number and type.
const BYTE kOneNumber[] = VTS_I4;
const BYTE kTwoNumbers[] = VTS_I4 VTS_I4;
const BYTE kNumberText[] = VTS_I4 VTS_BSTR;
const BYTE kTwoNumbersText[] = VTS_I4 VTS_I4 VTS_BSTR;

} // namespace

long CQORGrid::GetRowCount() {
    long count = 0;
    GetProperty(kGridRowCount, VT_I4, &count);
    return count;
}

void CQORGrid::SetColumnCount(long nCount) {
    SetProperty(kGridColumnCount, VT_I4, nCount);
}

void CQORGrid::SetUp() {
    SetProperty(kGridSortable, VT_I4, 0L);
    SetProperty(kGridShowHeader, VT_I4, 1L);
    InvokeHelper(kGridSetSelectionMode, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 1L);
    InvokeHelper(kGridSetFixedColumns, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 0L);
    InvokeHelper(kGridSetFixedRows, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 0L);
    InvokeHelper(kGridSetGridLines, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 1L);
}

void CQORGrid::SetColumnText(long nColumn, const CString& strText) {
    InvokeHelper(kGridSetColumnText, DISPATCH_METHOD, VT_EMPTY, nullptr, kNumberText, nColumn,
                 strText.GetString());
}

void CQORGrid::SetColumnWidth(long nColumn, long nPixels) {
    InvokeHelper(kGridSetColumnWidth, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, nColumn, nPixels);
}

void CQORGrid::SetColumnEditor(long nColumn, const CString& strPlugIn) {
    InvokeHelper(kGridSetColumnEditor, DISPATCH_METHOD, VT_EMPTY, nullptr, kNumberText, nColumn,
                 strPlugIn.GetString());
}

void CQORGrid::SetColumnKind(long nColumn, long nKind) {
    InvokeHelper(kGridSetColumnKind, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, nColumn, nKind);
}

void CQORGrid::AppendRow() {
    InvokeHelper(kGridAppendRow, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
}

void CQORGrid::SetCellText(long nRow, long nColumn, const CString& strText) {
    InvokeHelper(kGridSetCellText, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbersText, nRow, nColumn,
                 strText.GetString());
}

CString CQORGrid::GetCellText(long nRow, long nColumn) {
    CString text;
    InvokeHelper(kGridGetCellText, DISPATCH_METHOD, VT_BSTR, &text, kTwoNumbers, nRow, nColumn);
    return text;
}

void CQORGrid::SetRowValue(long nRow, long nValue) {
    InvokeHelper(kGridRowValue, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, nRow, nValue);
}

long CQORGrid::GetRowValue(long nRow) {
    long value = 0;
    InvokeHelper(kGridRowValue, DISPATCH_METHOD, VT_I4, &value, kOneNumber, nRow);
    return value;
}
