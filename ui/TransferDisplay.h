#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include "ui/TransferVariant.h"

/// What a transfer dialog shows: two labels, two bars and the log.
/// Setting a label, and laying out the log's text, costs more than the transfer of a small document. So what
/// is to be shown waits until it is drawn: only the latest label and position, but every log line.
class CTransferDisplay {
public:
    /// Binds the controls; for the dialog's DoDataExchange.
    void Exchange(CDataExchange* exchange, const varnoke::TransferVariant& variant);
    void Start(const CString& file, const CString& total, int count);

    void ShowFile(const CString& text, int activity);
    void ShowTotal(const CString& text);
    /// Logs and shows at once that no further file follows.
    void ShowStopping(const CString& text);
    /// Adds a line with the current time; an empty text is not logged.
    void Log(const CString& text);

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
