#include "ui/TransferDlg.h"

#include "module/Guarded.h"
#include "ui/InfoMessage.h"
#include "base/Owned.h"
#include "module/ResourceText.h"
#include "ui/WarningBox.h"
#include "ui/resource.h"

using namespace varnoke;

namespace {

const UINT_PTR kStartTimer = 1;
const UINT kStartDelay = 500; // ms
const UINT_PTR kActivityTimer = 2;
const UINT kActivityInterval = 100;
const UINT_PTR kCloseTimer = 3;
const UINT kCloseDelay = 1000;
const UINT_PTR kStopTimer = 4;
const UINT kStopInterval = 50;
const DWORD kStartPause = 100; // lets the worker come up

} // namespace

BEGIN_MESSAGE_MAP(CTransferDlg, CDialog)
    ON_WM_TIMER()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CTransferDlg::CTransferDlg(const TransferVariant& variant, CWnd* parent)
    : CDialog(variant.dialogId, parent), m_variant(variant), m_worker(variant) {}

CTransferDlg::~CTransferDlg() = default;

int CTransferDlg::SetFileList(SSignFileDUL* fileList) {
    if (!fileList) return 0;
    m_fileList = fileList;
    return 1;
}

INT_PTR CTransferDlg::DoModal() {
    const INT_PTR result = CDialog::DoModal();
    m_worker.Close();
    m_worker.Wait();
    return result;
}

int CTransferDlg::GetResultCode(int* resultCode) const {
    if (!resultCode) return 0;
    *resultCode = m_resultCode;
    return 1;
}

void CTransferDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    m_display.Exchange(exchange, m_variant);
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

// The loop goes on until the worker has ended: its server library may have to call back into this thread.
void CTransferDlg::OnCancel() {
    m_worker.Close();
    if (m_worker.HasEnded()) {
        EndDialog(IDCANCEL);
        return;
    }
    if (m_stopping) return;
    m_stopping = true;
    Guarded([this] { m_display.ShowStopping(ResourceText(IDS_TRANSFER_STOPPING)); });
    SetTimer(kStopTimer, kStopInterval, nullptr);
}

void CTransferDlg::OnStopTimer() {
    if (!m_worker.HasEnded()) return;
    KillTimer(kStopTimer);
    EndDialog(IDCANCEL);
}

void CTransferDlg::OnTimer(UINT_PTR timer) {
    CDialog::OnTimer(timer);
    switch (timer) {
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
    case kStopTimer:
        OnStopTimer();
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
    const base::OwnedBstr owned(text);
    return Guarded<LRESULT>(0, [&]() -> LRESULT {
        HandleStep(step, CString(text));
        m_display.DrawWhenDue();
        return 1;
    });
}

void CTransferDlg::HandleStep(TransferStep step, const CString& path) {
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
    if (path.IsEmpty()) return;
    switch (step) {
    case kFileBegins:
        OnFileBegins(path);
        break;
    case kFileDone:
        OnFileDone(path);
        break;
    case kFileSkipped:
        OnFileMissed(m_variant.textSkipped, path, step);
        break;
    case kFileFailed:
        OnFileMissed(m_variant.textFailed, path, step);
        break;
    default:
        break;
    }
}

void CTransferDlg::OnFileBegins(const CString& path) {
    const CString text = ResourceText(m_variant.textCurrent) + path;
    m_display.ShowFile(text, 0);
    SetTimer(kActivityTimer, kActivityInterval, nullptr);
    m_display.Log(text);
}

void CTransferDlg::OnFileDone(const CString& path) {
    const CString text = ResourceText(m_variant.textDone) + path;
    KillTimer(kActivityTimer);
    m_display.ShowFile(text, kActivityEnd);
    m_display.Log(text);
    if (m_done >= m_count) m_done = 0;
    ++m_done;
    m_display.ShowTotal(CountText(ResourceText(m_variant.textCount), m_done, m_count));
}

void CTransferDlg::OnFileMissed(UINT complaint, const CString& path, TransferStep step) {
    m_resultCode = ResultAfter(m_resultCode, step);
    m_warnings.push_back(ResourceText(IDS_WARNING_ABOUT) + path + L" " + ResourceText(complaint));
}

void CTransferDlg::ShowWarnings(size_t shown) {
    CString text;
    for (size_t i = 0; i < shown; ++i)
        text += m_warnings[i] + L"\r\n";
    if (shown < m_warnings.size()) {
        CString more;
        more.Format(ResourceText(IDS_MORE_WARNINGS), static_cast<int>(m_warnings.size() - shown));
        text += more;
    }
    m_warnings.clear();
    ShowInfo(text, this);
}

// A document that the box has no room for is named by the log; otherwise the box alone tells.
void CTransferDlg::OnRunOver(UINT text, TransferStep step) {
    const size_t shown = LinesThatFit(m_warnings, m_hWnd);
    if (shown < m_warnings.size()) {
        for (const CString& warning : m_warnings)
            m_display.Log(warning);
    }
    m_display.Log(ResourceText(text));
    m_display.Draw();
    ShowWarnings(shown);
    m_done = m_count;
    m_resultCode = ResultAfter(m_resultCode, step);
    CloseLater();
}
