// CWnd: attachment, creation and destruction.
#include "win/ThreadWindows.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

CWnd::CWnd() : m_hWnd(nullptr), m_nFlags(0), m_pfnSuper(nullptr), m_nModalResult(0) {}

CWnd::~CWnd() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    const CThreadWindows* pWindows = CThreadWindows::Find();
    return pWindows != nullptr ? pWindows->FindWindow(hWnd) : nullptr;
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

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    const HWND hWnd = ::CreateWindowEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, x, y, nWidth,
                                       nHeight, hWndParent, nIDorHMenu, AfxGetInstanceHandle(), lpParam);
    return SubclassWindow(hWnd);
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) return FALSE;
    const BOOL bResult = ::DestroyWindow(m_hWnd);
    // A window that was attached without being subclassed tells nobody of its end.
    Detach();
    return bResult;
}
