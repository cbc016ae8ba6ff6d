// A copy of the sign record.
#include <afxwin.h>

#include "host/Paths.h"
#include "host/RecordCopy.h"

namespace host {

RecordCopy::RecordCopy(const CString& folder, const wchar_t* name)
    : m_record(SignRecordFile(folder)), m_copy(SignDataFile(folder, name)) {}

bool RecordCopy::Exists() const {
    return FileExists(m_copy);
}

bool RecordCopy::Take() const {
    Discard();
    return !FileExists(m_record) || ::CopyFileW(m_record, m_copy, FALSE);
}

bool RecordCopy::Restore() const {
    if (Exists()) return ::MoveFileExW(m_copy, m_record, MOVEFILE_REPLACE_EXISTING) != FALSE;
    return ::DeleteFileW(m_record) || !FileExists(m_record);
}

void RecordCopy::Discard() const {
    ::DeleteFileW(m_copy);
}

} // namespace host
