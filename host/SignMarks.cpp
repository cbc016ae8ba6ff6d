// Sign tags and sign log of a document.
#include <afxwin.h>

#include "host/Paths.h"
#include "host/Records.h"
#include "host/SignMarks.h"

namespace host {

bool CSignMarks::Note(const CDocument& document, const SSignInfo& info) {
    document.FillEmpty(L"SIGN_USER", info.m_strUserName);
    document.FillEmpty(L"SIGN_DATE", info.m_strDateText);
    const bool logged = WriteLog(document, L"N");
    SetTags(document, 1, logged);
    return logged;
}

void CSignMarks::Withdraw(const CDocument& document) {
    long logged = 0;
    m_plm.GetDocSignLogTag(InText(m_strFolder), InText(document.Name()), &logged);
    // Over a logged, unsent signature this cancels the entry; alone it would log a deletion.
    if (logged) WriteLog(document, L"D");
    SetTags(document, 0, 0);
}

bool CSignMarks::SendLog() {
    const CString record = SignDataFile(m_strFolder, L"DocSignRecord.xml");
    if (!FileExists(record)) return true;
    const CString kept = SignDataFile(m_strFolder, L"DocSignRecord.unsent.xml");
    const bool copied = ::CopyFileW(record, kept, FALSE) != FALSE;
    const bool sent = m_plm.WriteSignLogToServer(m_strFolder) == 0;
    if (!sent && copied) {
        ::MoveFileExW(kept, record, MOVEFILE_REPLACE_EXISTING);
    } else {
        ::DeleteFileW(kept);
    }
    return sent;
}

bool CSignMarks::WriteLog(const CDocument& document, const wchar_t* kind) {
    return m_plm.WriteDelOrSignLogToLocal(document.Object(), m_strFolder, kind) != 0;
}

void CSignMarks::SetTags(const CDocument& document, long signTag, long logTag) {
    m_plm.SetDocSignTag(InText(m_strFolder), InText(document.Name()), signTag);
    m_plm.SetDocSignLogTag(InText(m_strFolder), InText(document.Name()), logTag);
}

} // namespace host
