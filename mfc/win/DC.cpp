// Device contexts.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

CDC::CDC() : m_hDC(nullptr) {}

CDC::~CDC() {
    if (m_hDC != nullptr) ::DeleteDC(m_hDC);
}

BOOL CDC::Attach(HDC hDC) {
    if (hDC == nullptr || m_hDC != nullptr) return FALSE;
    m_hDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    const HDC hDC = m_hDC;
    m_hDC = nullptr;
    return hDC;
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, str, str.GetLength(), lpRect, nFormat);
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps{}, m_hWnd(pWnd->m_hWnd) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
