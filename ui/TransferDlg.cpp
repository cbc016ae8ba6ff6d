// All members but the list's items belong to the dialog's thread; the worker is heard of by messages only.
#include "ui/TransferDlg.h"

#include "module/Guarded.h"
#include "module/InfoMessage.h"
#include "module/Owned.h"
#include "ui/ResourceText.h"

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

CTransferDlg::CTransferDlg(const STransferVariant& variant, CWnd* pParent)
    : CDialog(variant.m_nTemplate, pParent), m_variant(variant), m_worker(variant) {}

CTransferDlg::~CTransferDlg() = default;

int CTransferDlg::SetFileList(SSignFileDUL* pFileList) {
    if (pFileList == nullptr) return 0;
    m_pFileList = pFileList;
    return 1;
}

INT_PTR CTransferDlg::DoModal() {
    const INT_PTR result = CDialog::DoModal();
    m_worker.Close();
    m_worker.Wait();
    return result;
}

int CTransferDlg::GetResultCode(int* pResultCode) const {
    if (pResultCode == nullptr) return 0;
    *pResultCode = m_nResultCode;
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
    m_nCount = m_pFileList != nullptr ? static_cast<int>(m_pFileList->m_lstItem.GetCount()) : 0;
    if (m_nCount < 1) return;
    m_display.Start(ResourceText(m_variant.m_nTextCurrent), ResourceText(m_variant.m_nTextCount), m_nCount);
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
    if (GetSafeHwnd() != nullptr) SetTimer(kCloseTimer, kCloseDelay, nullptr);
}

bool CTransferDlg::StartRun() {
    if (m_nCount < 1) {
        ShowInfo(ResourceText(m_variant.m_nTextNothing), this);
        return false;
    }
    if (GetSafeHwnd() == nullptr || !m_worker.Start(m_pFileList, m_hWnd)) return false;
    ::Sleep(kStartPause);
    return true;
}

// While a run is still counting nothing else is undone here, the base handling included.
void CTransferDlg::OnDestroy() {
    m_worker.Close();
    if (m_nCount >= 1 && m_nDone < m_nCount) return;
    KillTimer(kStartTimer);
    KillTimer(kActivityTimer);
    CDialog::OnDestroy();
}

// The private messages lie in a row, in the order of the steps, from another number for each variant.
LRESULT CTransferDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const UINT step = message - m_variant.m_nFirstMessage;
    if (step < kTransferStepCount)
        return OnStep(static_cast<ETransferStep>(step), reinterpret_cast<BSTR>(wParam));
    return CDialog::WindowProc(message, wParam, lParam);
}

LRESULT CTransferDlg::OnStep(ETransferStep step, BSTR text) {
    m_worker.ReportTaken();
    const OwnedBstr owned(text);
    return Guarded<LRESULT>(0, [&]() -> LRESULT {
        HandleStep(step, CString(text));
        m_display.DrawWhenDue();
        return 1;
    });
}

void CTransferDlg::HandleStep(ETransferStep step, const CString& strPath) {
    switch (step) {
    case kRunStarted:
        m_display.Log(ResourceText(m_variant.m_nTextStarted));
        return;
    case kRunEnded:
        OnRunOver(m_variant.m_nTextEnded, step);
        return;
    case kRunInterrupted:
        OnRunOver(m_variant.m_nTextInterrupted, step);
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
        OnFileMissed(m_variant.m_nTextSkipped, strPath, step);
        break;
    case kFileFailed:
        OnFileMissed(m_variant.m_nTextFailed, strPath, step);
        break;
    default:
        break;
    }
}

void CTransferDlg::OnFileBegins(const CString& strPath) {
    const CString text = ResourceText(m_variant.m_nTextCurrent) + strPath;
    m_display.ShowFile(text, 0);
    SetTimer(kActivityTimer, kActivityInterval, nullptr);
    m_display.Log(text);
}

void CTransferDlg::OnFileDone(const CString& strPath) {
    const CString text = ResourceText(m_variant.m_nTextDone) + strPath;
    KillTimer(kActivityTimer);
    m_display.ShowFile(text, kActivityEnd);
    m_display.Log(text);
    if (m_nDone >= m_nCount) m_nDone = 0;
    ++m_nDone;
    m_display.ShowTotal(CountText(ResourceText(m_variant.m_nTextCount), m_nDone, m_nCount));
}

void CTransferDlg::OnFileMissed(UINT nComplaint, const CString& strPath, ETransferStep step) {
    m_nResultCode = ResultAfter(m_nResultCode, step);
    m_strWarnings += WarningLine(strPath, ResourceText(nComplaint));
}

void CTransferDlg::OnRunOver(UINT nText, ETransferStep step) {
    m_display.Log(ResourceText(nText));
    m_display.Draw();
    if (!m_strWarnings.IsEmpty()) {
        ShowInfo(m_strWarnings, this);
        m_strWarnings.Empty();
    }
    m_nDone = m_nCount;
    m_nResultCode = ResultAfter(m_nResultCode, step);
    CloseLater();
}
