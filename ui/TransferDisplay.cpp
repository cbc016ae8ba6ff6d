// Every line keeps the time at which it was logged, however long it waits.
#include "ui/TransferDisplay.h"

#include "ui/TransferRules.h"

using namespace varnoke;

namespace {

const ULONGLONG kDrawInterval = 100; // ms
const int kShortList = 10;           // documents; a short list is shown step by step
const int kLogLimit = 0x7ffffffe;

} // namespace

void CTransferDisplay::Exchange(CDataExchange* pDX, const TransferVariant& variant) {
    DDX_Control(pDX, variant.fileLabel, m_labelFile);
    DDX_Control(pDX, variant.fileBar, m_barFile);
    DDX_Control(pDX, variant.totalLabel, m_labelTotal);
    DDX_Control(pDX, variant.totalBar, m_barTotal);
    DDX_Control(pDX, variant.log, m_editLog);
}

void CTransferDisplay::Start(const CString& strFile, const CString& strTotal, int nCount) {
    m_paced = nCount > kShortList;
    m_labelFile.SetWindowText(strFile);
    m_barFile.SetRange32(0, kActivityEnd);
    m_barFile.SetPos(0);
    m_labelTotal.SetWindowText(strTotal);
    m_barTotal.SetRange32(0, nCount);
    m_barTotal.SetPos(0);
    m_editLog.SetWindowText(L"");
    // A long run logs more than an edit control holds by default.
    m_editLog.LimitText(kLogLimit);
}

void CTransferDisplay::ShowFile(const CString& strText, int nActivity) {
    m_file = strText;
    m_activity = nActivity;
}

void CTransferDisplay::ShowTotal(const CString& strText) {
    m_total = strText;
}

void CTransferDisplay::Log(const CString& strText) {
    if (strText.IsEmpty()) return;
    const __time64_t now = _time64(nullptr);
    tm local = {};
    const bool known = _localtime64_s(&local, &now) == 0;
    m_lines += LogLine(strText, known ? &local : nullptr);
}

void CTransferDisplay::Draw() {
    if (!m_file.IsEmpty()) {
        m_labelFile.SetWindowText(m_file);
        m_barFile.SetPos(m_activity);
        m_file.Empty();
    }
    if (!m_total.IsEmpty()) {
        m_labelTotal.SetWindowText(m_total);
        m_total.Empty();
    }
    if (!m_lines.IsEmpty()) {
        m_editLog.SetReadOnly(TRUE);
        const int end = m_editLog.GetWindowTextLength();
        m_editLog.SetSel(end, end); // this also scrolls the caret into view
        m_editLog.ReplaceSel(m_lines);
        m_lines.Empty();
    }
    m_lastDrawn = ::GetTickCount64();
}

void CTransferDisplay::DrawWhenDue() {
    if (!m_paced || ::GetTickCount64() - m_lastDrawn >= kDrawInterval) Draw();
}

void CTransferDisplay::StepActivity() {
    Draw();
    m_barFile.SetPos(NextActivityPosition(m_barFile.GetPos()));
}
