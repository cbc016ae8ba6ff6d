// CWnd: the plain window functions.
#include <afxwin.h>

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const {
    const int nLength = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLength(m_hWnd);
}

CFont* CWnd::GetFont() const {
    return static_cast<CFont*>(CGdiObject::FromHandle(reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT))));
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

CWnd* PASCAL CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* PASCAL CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::SetActiveWindow() {
    return FromHandle(::SetActiveWindow(m_hWnd));
}

BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* PASCAL CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    const HWND hWndControl = ::GetDlgItem(m_hWnd, nID);
    const int nLength = hWndControl != nullptr ? ::GetWindowTextLength(hWndControl) : 0;
    ::GetWindowText(hWndControl, rString.GetBuffer(nLength), nLength + 1);
    rString.ReleaseBuffer(hWndControl != nullptr ? -1 : 0);
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}
