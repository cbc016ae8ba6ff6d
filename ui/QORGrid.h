#pragma once

#include <afxwin.h>
#include <afxdisp.h>

/// The grid control in a dialog. Rows and columns count from 0. Every call throws when the control is missing
/// or refuses it.
class CQORGrid : public CWnd {
public:
    long GetRowCount();
    void SetColumnCount(long count);
    /// Whole rows are selected, nothing is sorted or fixed; called before rows are added.
    void SetUp();
    void SetColumnText(long column, const CString& text);
    void SetColumnWidth(long column, long pixels);
    /// Gives a column the cell editor of a plug-in.
    void SetColumnEditor(long column, const CString& plugIn);
    void SetColumnKind(long column, long kind);
    void AppendRow();
    void SetCellText(long row, long column, const CString& text);
    CString GetCellText(long row, long column);
    /// One integer per row, for the caller's use.
    void SetRowValue(long row, long value);
    long GetRowValue(long row);
};
