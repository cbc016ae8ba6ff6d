// A copy of the sign record.
#include <afxwin.h>

#include "host/Paths.h"
#include "host/RecordCopy.h"

namespace host {

CRecordCopy::CRecordCopy(const CString& folder, const wchar_t* name)
    : m_strRecord(SignRecordFile(folder)), m_strCopy(SignDataFile(folder, name)) {}

bool CRecordCopy::Exists() const {
    return FileExists(m_strCopy);
}

bool CRecordCopy::Take() const {
    Discard();
    return !FileExists(m_strRecord) || ::CopyFileW(m_strRecord, m_strCopy, FALSE);
}

bool CRecordCopy::Restore() const {
    if (Exists()) return ::MoveFileExW(m_strCopy, m_strRecord, MOVEFILE_REPLACE_EXISTING) != FALSE;
    return ::DeleteFileW(m_strRecord) || !FileExists(m_strRecord);
}

void CRecordCopy::Discard() const {
    ::DeleteFileW(m_strCopy);
}

} // namespace host
