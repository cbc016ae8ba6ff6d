// CTransferDlg: the progress dialog of a download or an upload; it closes itself when the run is over.
#pragma once

#include <afxwin.h>
#include "module/SignRecords.h"
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
    CTransferDlg(const varnoke::STransferVariant& variant, CWnd* pParent);

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
    LRESULT OnStep(varnoke::ETransferStep step, BSTR text);
    void HandleStep(varnoke::ETransferStep step, const CString& strPath);
    void OnFileBegins(const CString& strPath);
    void OnFileDone(const CString& strPath);
    void OnFileMissed(UINT nComplaint, const CString& strPath, varnoke::ETransferStep step);
    void OnRunOver(UINT nText, varnoke::ETransferStep step);

    const varnoke::STransferVariant& m_variant;
    CTransferDisplay m_display;
    SSignFileDUL* m_pFileList = nullptr; // weak
    CString m_strWarnings;               // lines to be shown when the run is over
    int m_nResultCode = varnoke::kTransferNone;
    int m_nDone = 0;
    int m_nCount = 0;
    CTransferWorker m_worker;
};
