// CFile::GetStatus.
#include <afx.h>

IMPLEMENT_DYNAMIC(CFile, CObject)

BOOL __stdcall CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    if (lpszFileName == nullptr || *lpszFileName == 0) return FALSE;
    TCHAR szFullName[_MAX_PATH];
    const DWORD nLength = GetFullPathName(lpszFileName, _MAX_PATH, szFullName, nullptr);
    if (nLength == 0 || nLength >= _MAX_PATH) return FALSE;

    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesEx(szFullName, GetFileExInfoStandard, &data)) return FALSE;
    const FILETIME& written = data.ftLastWriteTime;
    rStatus.m_mtime = CTime::IsValidFILETIME(written) ? CTime(written) : CTime();
    return TRUE;
}
