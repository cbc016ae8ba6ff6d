// Files: their status is all that is used; the rest holds the places of MFC's virtual functions.
#pragma once

// A function of the system's has the name of one here and would rename it.
#pragma push_macro("GetFileTitle")
#undef GetFileTitle

/// What CFile::GetStatus reports.
struct CFileStatus {
    CTime m_ctime; // creation
    CTime m_mtime; // last modification
    CTime m_atime; // last access
    ULONGLONG m_size;
    DWORD m_attribute;
    TCHAR m_szFullName[_MAX_PATH];
};

class CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    CFile();
    virtual ~CFile();

    virtual ULONGLONG GetPosition() const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, ATL::CAtlTransactionManager* pTM,
                      CFileException* pError = nullptr);
    virtual CFile* Duplicate() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void Abort();
    virtual void Flush();
    virtual void Close();
    virtual UINT GetBufferPtr(UINT nCommand, UINT nCount = 0, void** ppBufStart = nullptr,
                              void** ppBufMax = nullptr);

    /// FALSE when the file does not exist, cannot be asked, or has a full path of _MAX_PATH characters or
    /// more.
    static BOOL __stdcall GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus,
                                    ATL::CAtlTransactionManager* pTM = nullptr);

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName;
    ATL::CAtlTransactionManager* m_pTM;
};

#pragma pop_macro("GetFileTitle")
