// CQORGrid: wrapper of the grid control in a dialog.
#pragma once

#include <afxwin.h>
#include <afxdisp.h>

/// Rows and columns count from 0. Every call throws when the control is missing or refuses it.
class CQORGrid : public CWnd {
public:
    long GetRowCount();
    void SetColumnCount(long nCount);
    /// Whole rows are selected, nothing is sorted or fixed; called before rows are added.
    void SetUp();
    void SetColumnText(long nColumn, const CString& strText);
    void SetColumnWidth(long nColumn, long nPixels);
    /// Gives a column the cell editor of a plug-in.
    void SetColumnEditor(long nColumn, const CString& strPlugIn);
    void SetColumnKind(long nColumn, long nKind);
    void AppendRow();
    void SetCellText(long nRow, long nColumn, const CString& strText);
    CString GetCellText(long nRow, long nColumn);
    /// One integer per row, for the caller's use.
    void SetRowValue(long nRow, long nValue);
    long GetRowValue(long nRow);
};
