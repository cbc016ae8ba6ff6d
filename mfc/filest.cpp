// CFile::GetStatus.
#include <afx.h>

IMPLEMENT_DYNAMIC(CFile, CObject)

namespace {

CTime TimeOf(const FILETIME& time) {
    return CTime::IsValidFILETIME(time) ? CTime(time) : CTime();
}

} // namespace

BOOL __stdcall CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus, ATL::CAtlTransactionManager*) {
    if (lpszFileName == nullptr || *lpszFileName == 0) return FALSE;
    TCHAR szFullName[_MAX_PATH];
    const DWORD nLength = GetFullPathName(lpszFileName, _MAX_PATH, szFullName, nullptr);
    if (nLength == 0 || nLength >= _MAX_PATH) return FALSE;

    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesEx(szFullName, GetFileExInfoStandard, &data)) return FALSE;
    rStatus.m_ctime = TimeOf(data.ftCreationTime);
    rStatus.m_mtime = TimeOf(data.ftLastWriteTime);
    rStatus.m_atime = TimeOf(data.ftLastAccessTime);
    rStatus.m_size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    rStatus.m_attribute = data.dwFileAttributes;
    wmemcpy(rStatus.m_szFullName, szFullName, nLength + 1);
    return TRUE;
}

CFile::CFile() : m_hFile(INVALID_HANDLE_VALUE), m_bCloseOnDelete(FALSE), m_pTM(nullptr) {}

CFile::~CFile() = default;
