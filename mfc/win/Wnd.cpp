// CWnd: attachment, creation, and the plain window functions.
#include "win/ThreadWindows.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::CWnd() : m_hWnd(nullptr), m_pfnSuper(nullptr), m_nModalResult(0), m_nFlags(0) {}

CWnd::~CWnd() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    if (hWnd == nullptr) return nullptr;
    CThreadWindows& windows = CThreadWindows::Get();
    if (CWnd* pWnd = windows.FindWindow(hWnd)) return pWnd;
    auto& pTemporary = windows.m_temporaryWindows[hWnd];
    if (pTemporary == nullptr) {
        pTemporary.reset(new CWnd);
        pTemporary->m_hWnd = hWnd;
    }
    return pTemporary.get();
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    const CThreadWindows* pWindows = CThreadWindows::Find();
    return pWindows != nullptr ? pWindows->FindWindow(hWnd) : nullptr;
}

void PASCAL CWnd::DeleteTempMap() {
    if (CThreadWindows* pWindows = CThreadWindows::Find()) pWindows->m_temporaryWindows.clear();
    CThreadWindows::DropIfUnused();
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr || m_hWnd != nullptr) return FALSE;
    if (!CThreadWindows::Get().m_windows.emplace(hWndNew, this).second) return FALSE; // another object has it
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND hWnd = m_hWnd;
    m_hWnd = nullptr;
    CThreadWindows* pWindows = CThreadWindows::Find();
    if (hWnd != nullptr && pWindows != nullptr && pWindows->FindWindow(hWnd) == this) {
        pWindows->m_windows.erase(hWnd);
        CThreadWindows::DropIfUnused();
    }
    return hWnd;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd)) return FALSE;
    PreSubclassWindow();
    const auto pfnOld = reinterpret_cast<WNDPROC>(
        SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (pfnOld != &AfxWndProc) m_pfnSuper = pfnOld;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    if (m_pfnSuper != nullptr) SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    return Detach();
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    // A class of the framework's own takes the object with its first message, others are subclassed after.
    CThreadWindows::Get().m_pCreating = this;
    const HWND hWnd = ::CreateWindowEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, x, y, nWidth,
                                       nHeight, hWndParent, nIDorHMenu, AfxGetInstanceHandle(), lpParam);
    const BOOL bWaiting = CThreadWindows::TakeCreated() != nullptr;
    if (hWnd == nullptr) CThreadWindows::DropIfUnused();
    return hWnd != nullptr && (!bWaiting || SubclassWindow(hWnd));
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) return FALSE;
    const BOOL bResult = ::DestroyWindow(m_hWnd);
    // A window that was attached without being subclassed tells nobody of its end.
    Detach();
    return bResult;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    TCHAR(&szName)[96] = CThreadWindows::Get().m_szClassName;
    wsprintf(szName, _T("Afx:%p:%x:%p:%p:%p"), AfxGetInstanceHandle(), nClassStyle, hCursor, hbrBackground,
             hIcon);
    WNDCLASS wndClass = {};
    if (!GetClassInfo(AfxGetInstanceHandle(), szName, &wndClass)) {
        wndClass.style = nClassStyle;
        wndClass.lpfnWndProc = AfxWndProc;
        wndClass.hInstance = AfxGetInstanceHandle();
        wndClass.hIcon = hIcon;
        wndClass.hCursor = hCursor;
        wndClass.hbrBackground = hbrBackground;
        wndClass.lpszClassName = szName;
        if (!RegisterClass(&wndClass)) AfxThrowResourceException();
    }
    return szName;
}
