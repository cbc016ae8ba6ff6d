#include "ui/TransferDisplay.h"

#include "ui/TransferRules.h"

using namespace varnoke;

namespace {

const ULONGLONG kDrawInterval = 100; // ms
const int kShortList = 10;           // documents; a short list is shown step by step
const int kLogLimit = 0x7ffffffe;

} // namespace

void CTransferDisplay::Exchange(CDataExchange* exchange, const TransferVariant& variant) {
    DDX_Control(exchange, variant.fileLabel, m_labelFile);
    DDX_Control(exchange, variant.fileBar, m_barFile);
    DDX_Control(exchange, variant.totalLabel, m_labelTotal);
    DDX_Control(exchange, variant.totalBar, m_barTotal);
    DDX_Control(exchange, variant.log, m_editLog);
}

void CTransferDisplay::Start(const CString& file, const CString& total, int count) {
    m_paced = count > kShortList;
    m_labelFile.SetWindowText(file);
    m_barFile.SetRange32(0, kActivityEnd);
    m_barFile.SetPos(0);
    m_labelTotal.SetWindowText(total);
    m_barTotal.SetRange32(0, count);
    m_barTotal.SetPos(0);
    m_editLog.SetWindowText(L"");
    // A long run logs more than an edit control holds by default.
    m_editLog.LimitText(kLogLimit);
}

void CTransferDisplay::ShowFile(const CString& text, int activity) {
    m_file = text;
    m_activity = activity;
}

void CTransferDisplay::ShowTotal(const CString& text) {
    m_total = text;
}

void CTransferDisplay::ShowStopping(const CString& text) {
    Log(text);
    Draw();
    m_labelFile.SetWindowText(text);
}

void CTransferDisplay::Log(const CString& text) {
    if (text.IsEmpty()) return;
    SYSTEMTIME now = {};
    ::GetLocalTime(&now); // the run-time library's local time depends on TZ
    m_lines += LogLine(text, now);
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
