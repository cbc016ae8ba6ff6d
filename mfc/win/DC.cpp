// Device contexts.
#include "win/ThreadWindows.h"

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

CDC::CDC() : m_hDC(nullptr) {}

CDC::~CDC() {
    if (m_hDC != nullptr) ::DeleteDC(m_hDC);
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    if (hDC == nullptr) return nullptr;
    auto& pTemporary = CThreadWindows::Get().m_temporaryContexts[hDC];
    if (pTemporary == nullptr) {
        pTemporary.reset(new CDC);
        pTemporary->m_hDC = hDC;
    }
    return pTemporary.get();
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

int CDC::SaveDC() {
    return ::SaveDC(m_hDC);
}

BOOL CDC::RestoreDC(int nSavedDC) {
    return ::RestoreDC(m_hDC, nSavedDC);
}

CPen* CDC::SelectObject(CPen* pPen) {
    return static_cast<CPen*>(CGdiObject::FromHandle(::SelectObject(m_hDC, *pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(::SelectObject(m_hDC, *pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return static_cast<CFont*>(CGdiObject::FromHandle(::SelectObject(m_hDC, *pFont)));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(nIndex)));
}

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, *pBrush);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    // Opaque text output without text: fills without a brush.
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
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
