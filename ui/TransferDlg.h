#pragma once

#include <afxwin.h>
#include <vector>
#include "varnoke/SignRecords.h"
#include "ui/TransferDisplay.h"
#include "ui/TransferRules.h"
#include "ui/TransferWorker.h"

/// The progress dialog of a download or an upload; it closes itself when the run is over.
class CTransferDlg : public CDialog {
public:
    ~CTransferDlg() override;

    /// The documents to transfer; borrowed, must outlive the dialog. Returns 1, or 0 for null.
    int SetFileList(SSignFileDUL* fileList);
    /// Runs the transfer. Ends with IDOK, or with IDCANCEL when the user closed it early; then the file in
    /// hand is finished, while messages are still served, and the rest of the documents is left. Either way
    /// nobody writes to the list any more when this returns.
    INT_PTR DoModal() override;
    /// 0 nothing happened or closed early, 1 all done, 2 interrupted, 3 some skipped, 4 some failed. Returns
    /// 1, or 0 for null.
    int GetResultCode(int* resultCode) const;

protected:
    CTransferDlg(const varnoke::TransferVariant& variant, CWnd* parent);

    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void InitControls();
    void OnStartTimer();
    void OnStopTimer();
    bool StartRun();
    void CloseLater();
    LRESULT OnStep(varnoke::TransferStep step, BSTR text);
    void HandleStep(varnoke::TransferStep step, const CString& path);
    void OnFileBegins(const CString& path);
    void OnFileDone(const CString& path);
    void OnFileMissed(UINT complaint, const CString& path, varnoke::TransferStep step);
    void OnRunOver(UINT text, varnoke::TransferStep step);
    void ShowWarnings(size_t shown);

    const varnoke::TransferVariant& m_variant;
    CTransferDisplay m_display;
    SSignFileDUL* m_fileList = nullptr; // weak
    std::vector<CString> m_warnings;    // lines to be shown when the run is over
    int m_resultCode = varnoke::kTransferNone;
    int m_done = 0;
    int m_count = 0;
    bool m_stopping = false;
    CTransferWorker m_worker;
};
