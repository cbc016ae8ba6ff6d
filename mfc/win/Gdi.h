// GDI objects and device contexts: each object owns its handle unless it was got from FromHandle.
#pragma once

#include <afx.h>
#include <atltypes.h>

class CWnd;

class CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject();
    virtual ~CGdiObject(); // deletes the object
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    // A temporary object that lends the handle until the outermost modal loop is idle or ends.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    HGDIOBJ m_hObject;
};

class CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor); // throws CResourceException
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
};

class CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    CBrush(COLORREF crColor); // throws CResourceException
    BOOL CreateSolidBrush(COLORREF crColor);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
};

class CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
};

class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC();
    virtual ~CDC(); // deletes the context
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    static CDC* PASCAL FromHandle(HDC hDC); // temporary, as CGdiObject::FromHandle
    BOOL Attach(HDC hDC);
    HDC Detach();
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }

    int SaveDC();
    BOOL RestoreDC(int nSavedDC);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CGdiObject* SelectStockObject(int nIndex);

    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }
    COLORREF SetTextColor(COLORREF crColor) { return ::SetTextColor(m_hDC, crColor); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    COLORREF SetBkColor(COLORREF crColor) { return ::SetBkColor(m_hDC, crColor); }
    int GetBkMode() const { return ::GetBkMode(m_hDC); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }

    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FillSolidRect(LPCRECT lpRect, COLORREF clr); // leaves clr as the background colour
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL Rectangle(LPCRECT lpRect) { return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);

    HDC m_hDC;
};

// The context of a window that is being painted, from construction to destruction.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd); // throws CResourceException
    virtual ~CPaintDC();

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

// The context of a window's client area.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd); // throws CResourceException
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};
