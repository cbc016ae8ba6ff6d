// OLE automation errors, argument types for calls by identifier, and hosting of ActiveX controls.
#pragma once

#include <afxwin.h>
#include <ole2.h>

class COleException : public CException {
    DECLARE_DYNAMIC(COleException)
public:
    COleException() : m_sc(S_OK) {}
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = nullptr) const override;

    SCODE m_sc;
};

[[noreturn]] void AFXAPI AfxThrowOleException(SCODE sc);

// An automation server's own error.
class COleDispatchException : public CException {
    DECLARE_DYNAMIC(COleDispatchException)
public:
    COleDispatchException(LPCTSTR lpszDescription, UINT nHelpID, WORD wCode);
    virtual ~COleDispatchException();
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = nullptr) const override;

    WORD m_wCode;
    CString m_strDescription;
    DWORD m_dwHelpContext;
    CString m_strHelpFile;
    CString m_strSource;
    SCODE m_scError;
};

// Lets dialog templates of this module name ActiveX controls by class identifier.
class COccManager;
void AFX_CDECL AfxEnableControlContainer(COccManager* pOccManager = nullptr);

// Argument types of InvokeHelper: one byte per argument, joined by string concatenation.
#define VTS_I4 "\x03"
#define VTS_BSTR "\x08" // LPCTSTR
