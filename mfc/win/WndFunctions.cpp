// CWnd: the plain window functions.
#include <afxwin.h>

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowText(m_hWnd, lpszString);
}

void CWnd::GetWindowText(CString& rString) const {
    const int nLength = ::GetWindowTextLength(m_hWnd);
    const int nCopied = ::GetWindowText(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer(nCopied);
}

int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(m_hWnd);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}
