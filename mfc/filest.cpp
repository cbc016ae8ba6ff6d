// CFile::GetStatus.
#include <afx.h>

IMPLEMENT_DYNAMIC(CFile, CObject)

namespace {

CTime ToTime(const FILETIME& fileTime, CTime fallback) {
    return CTime::IsValidFILETIME(fileTime) ? CTime(fileTime) : fallback;
}

} // namespace

BOOL __stdcall CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    rStatus.m_szFullName[0] = 0;
    if (lpszFileName == nullptr || *lpszFileName == 0) return FALSE;
    const DWORD nLength = GetFullPathNameW(lpszFileName, _MAX_PATH, rStatus.m_szFullName, nullptr);
    if (nLength == 0 || nLength >= _MAX_PATH) {
        rStatus.m_szFullName[0] = 0;
        return FALSE;
    }

    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(rStatus.m_szFullName, GetFileExInfoStandard, &data)) return FALSE;
    // FILE_ATTRIBUTE_NORMAL stands for "none of the others".
    rStatus.m_attribute = data.dwFileAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL);
    rStatus.m_size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    // Some file systems keep the modification time only.
    rStatus.m_mtime = ToTime(data.ftLastWriteTime, CTime());
    rStatus.m_ctime = ToTime(data.ftCreationTime, rStatus.m_mtime);
    rStatus.m_atime = ToTime(data.ftLastAccessTime, rStatus.m_mtime);
    return TRUE;
}
