// The exceptions of automation calls.
#include <afxdisp.h>

IMPLEMENT_DYNAMIC(COleException, CException)
IMPLEMENT_DYNAMIC(COleDispatchException, CException)

COleDispatchException::COleDispatchException(LPCTSTR lpszDescription, UINT nHelpID, WORD wCode)
    : m_wCode(wCode), m_strDescription(lpszDescription), m_dwHelpContext(nHelpID), m_scError(S_OK) {}

COleDispatchException::~COleDispatchException() = default;

void AFXAPI AfxThrowOleException(SCODE sc) {
    auto* pException = new COleException;
    pException->m_sc = sc;
    throw pException;
}
