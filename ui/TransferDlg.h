// CTransferDlg: the progress dialog of a download or an upload; it closes itself when the run is over.
#pragma once

#include <afxwin.h>
#include "varnoke/SignRecords.h"
#include "ui/TransferDisplay.h"
#include "ui/TransferRules.h"
#include "ui/TransferWorker.h"

class CTransferDlg : public CDialog {
public:
    ~CTransferDlg() override;

    /// The documents to transfer; borrowed, must outlive the dialog. Returns 1, or 0 for null.
    int SetFileList(SSignFileDUL* pFileList);
    /// Runs the transfer. Ends with IDOK, or with IDCANCEL when the user closed it early; then the rest of
    /// the documents is left. Either way nobody writes to the list any more when this returns.
    INT_PTR DoModal() override;
    /// 0 nothing happened, 1 all done, 2 interrupted, 3 some skipped, 4 some failed. Returns 1, or 0 for
    /// null.
    int GetResultCode(int* pResultCode) const;

protected:
    CTransferDlg(const varnoke::TransferVariant& variant, CWnd* pParent);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void InitControls();
    void OnStartTimer();
    bool StartRun();
    void CloseLater();
    LRESULT OnStep(varnoke::TransferStep step, BSTR text);
    void HandleStep(varnoke::TransferStep step, const CString& strPath);
    void OnFileBegins(const CString& strPath);
    void OnFileDone(const CString& strPath);
    void OnFileMissed(UINT nComplaint, const CString& strPath, varnoke::TransferStep step);
    void OnRunOver(UINT nText, varnoke::TransferStep step);

    const varnoke::TransferVariant& m_variant;
    CTransferDisplay m_display;
    SSignFileDUL* m_fileList = nullptr; // weak
    CString m_warnings;                 // lines to be shown when the run is over
    int m_resultCode = varnoke::kTransferNone;
    int m_done = 0;
    int m_count = 0;
    CTransferWorker m_worker;
};
