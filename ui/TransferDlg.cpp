// All members but the list's items belong to the dialog's thread; the worker is heard of by messages only.
#include "ui/TransferDlg.h"

#include "module/Guarded.h"
#include "module/InfoMessage.h"
#include "base/Owned.h"
#include "module/ResourceText.h"

using namespace varnoke;

namespace {

const UINT_PTR kStartTimer = 1;
const UINT kStartDelay = 500; // ms
const UINT_PTR kActivityTimer = 2;
const UINT kActivityInterval = 100;
const UINT_PTR kCloseTimer = 3;
const UINT kCloseDelay = 1000;
const DWORD kStartPause = 100; // lets the worker come up

} // namespace

BEGIN_MESSAGE_MAP(CTransferDlg, CDialog)
    ON_WM_TIMER()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CTransferDlg::CTransferDlg(const TransferVariant& variant, CWnd* pParent)
    : CDialog(variant.dialogId, pParent), m_variant(variant), m_worker(variant) {}

CTransferDlg::~CTransferDlg() = default;

int CTransferDlg::SetFileList(SSignFileDUL* pFileList) {
    if (!pFileList) return 0;
    m_fileList = pFileList;
    return 1;
}

INT_PTR CTransferDlg::DoModal() {
    const INT_PTR result = CDialog::DoModal();
    m_worker.Close();
    m_worker.Wait();
    return result;
}

int CTransferDlg::GetResultCode(int* pResultCode) const {
    if (!pResultCode) return 0;
    *pResultCode = m_resultCode;
    return 1;
}

void CTransferDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    m_display.Exchange(pDX, m_variant);
}

BOOL CTransferDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Guarded([this] { InitControls(); });
    SetTimer(kStartTimer, kStartDelay, nullptr);
    return TRUE;
}

void CTransferDlg::InitControls() {
    m_count = m_fileList ? static_cast<int>(m_fileList->m_lstItem.GetCount()) : 0;
    if (m_count < 1) return;
    m_display.Start(ResourceText(m_variant.textCurrent), ResourceText(m_variant.textCount), m_count);
}

// There is no button to confirm: a stray Enter must not end the run.
void CTransferDlg::OnOK() {}

void CTransferDlg::OnTimer(UINT_PTR nIDEvent) {
    CDialog::OnTimer(nIDEvent);
    switch (nIDEvent) {
    case kStartTimer:
        OnStartTimer();
        break;
    case kActivityTimer:
        Guarded([this] { m_display.StepActivity(); });
        break;
    case kCloseTimer:
        KillTimer(kCloseTimer);
        EndDialog(IDOK);
        break;
    }
}

void CTransferDlg::OnStartTimer() {
    KillTimer(kStartTimer);
    if (!Guarded(false, [this] { return StartRun(); })) CloseLater();
}

void CTransferDlg::CloseLater() {
    // A message box may have outlived the window.
    if (GetSafeHwnd()) SetTimer(kCloseTimer, kCloseDelay, nullptr);
}

bool CTransferDlg::StartRun() {
    if (m_count < 1) {
        ShowInfo(ResourceText(m_variant.textNothing), this);
        return false;
    }
    if (!GetSafeHwnd() || !m_worker.Start(m_fileList, m_hWnd)) return false;
    ::Sleep(kStartPause);
    return true;
}

// While a run is still counting nothing else is undone here, the base handling included.
void CTransferDlg::OnDestroy() {
    m_worker.Close();
    if (m_count >= 1 && m_done < m_count) return;
    KillTimer(kStartTimer);
    KillTimer(kActivityTimer);
    CDialog::OnDestroy();
}

// The private messages lie in a row, in the order of the steps, from another number for each variant.
LRESULT CTransferDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const UINT step = message - m_variant.firstMessage;
    if (step < kTransferStepCount)
        return OnStep(static_cast<TransferStep>(step), reinterpret_cast<BSTR>(wParam));
    return CDialog::WindowProc(message, wParam, lParam);
}

LRESULT CTransferDlg::OnStep(TransferStep step, BSTR text) {
    m_worker.ReportTaken();
    const OwnedBstr owned(text);
    return Guarded<LRESULT>(0, [&]() -> LRESULT {
        HandleStep(step, CString(text));
        m_display.DrawWhenDue();
        return 1;
    });
}

void CTransferDlg::HandleStep(TransferStep step, const CString& strPath) {
    switch (step) {
    case kRunStarted:
        m_display.Log(ResourceText(m_variant.textStarted));
        return;
    case kRunEnded:
        OnRunOver(m_variant.textEnded, step);
        return;
    case kRunInterrupted:
        OnRunOver(m_variant.textInterrupted, step);
        return;
    default:
        break;
    }
    if (strPath.IsEmpty()) return;
    switch (step) {
    case kFileBegins:
        OnFileBegins(strPath);
        break;
    case kFileDone:
        OnFileDone(strPath);
        break;
    case kFileSkipped:
        OnFileMissed(m_variant.textSkipped, strPath, step);
        break;
    case kFileFailed:
        OnFileMissed(m_variant.textFailed, strPath, step);
        break;
    default:
        break;
    }
}

void CTransferDlg::OnFileBegins(const CString& strPath) {
    const CString text = ResourceText(m_variant.textCurrent) + strPath;
    m_display.ShowFile(text, 0);
    SetTimer(kActivityTimer, kActivityInterval, nullptr);
    m_display.Log(text);
}

void CTransferDlg::OnFileDone(const CString& strPath) {
    const CString text = ResourceText(m_variant.textDone) + strPath;
    KillTimer(kActivityTimer);
    m_display.ShowFile(text, kActivityEnd);
    m_display.Log(text);
    if (m_done >= m_count) m_done = 0;
    ++m_done;
    m_display.ShowTotal(CountText(ResourceText(m_variant.textCount), m_done, m_count));
}

void CTransferDlg::OnFileMissed(UINT nComplaint, const CString& strPath, TransferStep step) {
    m_resultCode = ResultAfter(m_resultCode, step);
    m_warnings += WarningLine(strPath, ResourceText(nComplaint));
}

void CTransferDlg::OnRunOver(UINT nText, TransferStep step) {
    m_display.Log(ResourceText(nText));
    m_display.Draw();
    if (!m_warnings.IsEmpty()) {
        ShowInfo(m_warnings, this);
        m_warnings.Empty();
    }
    m_done = m_count;
    m_resultCode = ResultAfter(m_resultCode, step);
    CloseLater();
}
