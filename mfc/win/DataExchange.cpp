// The exchange of data between a dialog and its controls.
#include <afxwin.h>

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    const HWND hWndControl = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (hWndControl == nullptr) AfxThrowNotSupportedException();
    return hWndControl;
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr) return;
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC))) AfxThrowNotSupportedException();
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange dx(this, bSaveAndValidate);
    try {
        DoDataExchange(&dx);
        return TRUE;
    } catch (CException* e) {
        e->Delete();
        return FALSE;
    }
}
