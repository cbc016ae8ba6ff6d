// CTransferDisplay: what a transfer dialog shows: two labels, two bars and the log.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include "ui/TransferVariant.h"

/// Setting a label, and laying out the log's text, costs more than the transfer of a small document. So what
/// is to be shown waits until it is drawn: only the latest label and position, but every log line.
class CTransferDisplay {
public:
    /// Binds the controls; for the dialog's DoDataExchange.
    void Exchange(CDataExchange* pDX, const varnoke::TransferVariant& variant);
    void Start(const CString& strFile, const CString& strTotal, int nCount);

    void ShowFile(const CString& strText, int nActivity);
    void ShowTotal(const CString& strText);
    /// Adds a line with the current time; an empty text is not logged.
    void Log(const CString& strText);

    void Draw();
    /// Draws unless that was done often and just before.
    void DrawWhenDue();
    /// Draws and moves the activity bar on.
    void StepActivity();

private:
    CStatic m_labelFile;
    CProgressCtrl m_barFile;
    CStatic m_labelTotal;
    CProgressCtrl m_barTotal; // keeps its start position: the count in the label is the progress display
    CEdit m_editLog;

    /// What waits to be drawn; empty texts when nothing does.
    CString m_file;
    int m_activity = 0;
    CString m_total;
    CString m_lines;
    ULONGLONG m_lastDrawn = 0; // ms
    bool m_paced = false;
};
