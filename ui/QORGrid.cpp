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

void CQORGrid::SetColumnCount(long count) {
    SetProperty(kGridColumnCount, VT_I4, count);
}

void CQORGrid::SetUp() {
    SetProperty(kGridSortable, VT_I4, 0L);
    SetProperty(kGridShowHeader, VT_I4, 1L);
    InvokeHelper(kGridSetSelectionMode, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 1L);
    InvokeHelper(kGridSetFixedColumns, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 0L);
    InvokeHelper(kGridSetFixedRows, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 0L);
    InvokeHelper(kGridSetGridLines, DISPATCH_METHOD, VT_EMPTY, nullptr, kOneNumber, 1L);
}

void CQORGrid::SetColumnText(long column, const CString& text) {
    InvokeHelper(kGridSetColumnText, DISPATCH_METHOD, VT_EMPTY, nullptr, kNumberText, column,
                 text.GetString());
}

void CQORGrid::SetColumnWidth(long column, long pixels) {
    InvokeHelper(kGridSetColumnWidth, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, column, pixels);
}

void CQORGrid::SetColumnEditor(long column, const CString& plugIn) {
    InvokeHelper(kGridSetColumnEditor, DISPATCH_METHOD, VT_EMPTY, nullptr, kNumberText, column,
                 plugIn.GetString());
}

void CQORGrid::SetColumnKind(long column, long kind) {
    InvokeHelper(kGridSetColumnKind, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, column, kind);
}

void CQORGrid::AppendRow() {
    InvokeHelper(kGridAppendRow, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
}

void CQORGrid::SetCellText(long row, long column, const CString& text) {
    InvokeHelper(kGridSetCellText, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbersText, row, column,
                 text.GetString());
}

CString CQORGrid::GetCellText(long row, long column) {
    CString text;
    InvokeHelper(kGridGetCellText, DISPATCH_METHOD, VT_BSTR, &text, kTwoNumbers, row, column);
    return text;
}

void CQORGrid::SetRowValue(long row, long value) {
    InvokeHelper(kGridRowValue, DISPATCH_METHOD, VT_EMPTY, nullptr, kTwoNumbers, row, value);
}

long CQORGrid::GetRowValue(long row) {
    long value = 0;
    InvokeHelper(kGridRowValue, DISPATCH_METHOD, VT_I4, &value, kOneNumber, row);
    return value;
}
