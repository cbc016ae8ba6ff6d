// The virtual functions that nobody uses here. They hold MFC's places in the tables, so that what is built
// against this framework runs with the real one too; called, they do nothing and report failure.
#include <afx.h>
#undef GetFileTitle

// CException
BOOL CException::GetErrorMessage(LPTSTR, UINT, PUINT) const {
    return FALSE;
}
BOOL CException::GetErrorMessage(LPTSTR, UINT, PUINT) {
    return FALSE;
}
int CException::ReportError(UINT, UINT) {
    return 0;
}

// CSimpleException
BOOL CSimpleException::GetErrorMessage(LPTSTR, UINT, PUINT) const {
    return FALSE;
}

// CFile
ULONGLONG CFile::GetPosition() const {
    return 0;
}
CString CFile::GetFileName() const {
    return CString();
}
CString CFile::GetFileTitle() const {
    return CString();
}
CString CFile::GetFilePath() const {
    return CString();
}
BOOL CFile::Open(LPCTSTR, UINT, CFileException*) {
    return FALSE;
}
BOOL CFile::Open(LPCTSTR, UINT, ATL::CAtlTransactionManager*, CFileException*) {
    return FALSE;
}
CFile* CFile::Duplicate() const {
    return nullptr;
}
ULONGLONG CFile::Seek(LONGLONG, UINT) {
    return 0;
}
void CFile::SetLength(ULONGLONG) {}
ULONGLONG CFile::GetLength() const {
    return 0;
}
UINT CFile::Read(void*, UINT) {
    return 0;
}
void CFile::Write(const void*, UINT) {}
void CFile::LockRange(ULONGLONG, ULONGLONG) {}
void CFile::UnlockRange(ULONGLONG, ULONGLONG) {}
void CFile::Abort() {}
void CFile::Flush() {}
void CFile::Close() {}
UINT CFile::GetBufferPtr(UINT, UINT, void**, void**) {
    return 0;
}
