// Device contexts.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

CDC::CDC() : m_hDC(nullptr), m_hAttribDC(nullptr), m_bPrinting(FALSE) {}

CDC::~CDC() {
    if (m_hDC != nullptr) ::DeleteDC(m_hDC);
}

BOOL CDC::Attach(HDC hDC) {
    if (hDC == nullptr || m_hDC != nullptr) return FALSE;
    m_hDC = m_hAttribDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    const HDC hDC = m_hDC;
    m_hDC = m_hAttribDC = nullptr;
    return hDC;
}

int CDC::SetBkMode(int nBkMode) {
    return ::SetBkMode(m_hDC, nBkMode);
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->m_hWnd), m_ps{} {
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
