// Every line keeps the time at which it was logged, however long it waits.
#include "ui/TransferDisplay.h"

#include "ui/TransferRules.h"

using namespace varnoke;

namespace {

const ULONGLONG kDrawInterval = 100; // ms
const int kShortList = 10;           // documents; a short list is shown step by step
const int kLogLimit = 0x7ffffffe;

} // namespace

void CTransferDisplay::Exchange(CDataExchange* pDX, const STransferVariant& variant) {
    DDX_Control(pDX, variant.m_nFileLabel, m_labelFile);
    DDX_Control(pDX, variant.m_nFileBar, m_barFile);
    DDX_Control(pDX, variant.m_nTotalLabel, m_labelTotal);
    DDX_Control(pDX, variant.m_nTotalBar, m_barTotal);
    DDX_Control(pDX, variant.m_nLog, m_editLog);
}

void CTransferDisplay::Start(const CString& strFile, const CString& strTotal, int nCount) {
    m_bPaced = nCount > kShortList;
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
    m_strFile = strText;
    m_nActivity = nActivity;
}

void CTransferDisplay::ShowTotal(const CString& strText) {
    m_strTotal = strText;
}

void CTransferDisplay::Log(const CString& strText) {
    if (strText.IsEmpty()) return;
    const __time64_t now = _time64(nullptr);
    tm local = {};
    const bool known = _localtime64_s(&local, &now) == 0;
    m_strLines += LogLine(strText, known ? &local : nullptr);
}

void CTransferDisplay::Draw() {
    if (!m_strFile.IsEmpty()) {
        m_labelFile.SetWindowText(m_strFile);
        m_barFile.SetPos(m_nActivity);
        m_strFile.Empty();
    }
    if (!m_strTotal.IsEmpty()) {
        m_labelTotal.SetWindowText(m_strTotal);
        m_strTotal.Empty();
    }
    if (!m_strLines.IsEmpty()) {
        m_editLog.SetReadOnly(TRUE);
        const int end = m_editLog.GetWindowTextLength();
        m_editLog.SetSel(end, end); // this also scrolls the caret into view
        m_editLog.ReplaceSel(m_strLines);
        m_strLines.Empty();
    }
    m_nLastDrawn = ::GetTickCount64();
}

void CTransferDisplay::DrawWhenDue() {
    if (!m_bPaced || ::GetTickCount64() - m_nLastDrawn >= kDrawInterval) Draw();
}

void CTransferDisplay::StepActivity() {
    Draw();
    m_barFile.SetPos(NextActivityPosition(m_barFile.GetPos()));
}
