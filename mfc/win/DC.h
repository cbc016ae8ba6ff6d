// Device contexts. A context owns its handle: a painting one ends the painting, a client one gives it back.
#pragma once

#include <afx.h>
#include <atltypes.h>

class CBrush;
class CFont;
class CGdiObject;
class CWnd;

class CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC();
    virtual ~CDC(); // deletes an attached context
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    BOOL Attach(HDC hDC);
    HDC Detach();
    operator HDC() const { return m_hDC; }

    int SetBkMode(int nBkMode);

    HDC m_hDC;       // what drawing goes to
    HDC m_hAttribDC; // what questions go to

protected:
    BOOL m_bPrinting;

public:
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    virtual CGdiObject* SelectStockObject(int nIndex);
    virtual CFont* SelectObject(CFont* pFont);
    virtual COLORREF SetBkColor(COLORREF crColor);
    virtual COLORREF SetTextColor(COLORREF crColor);
    virtual int SetMapMode(int nMapMode);
    virtual CPoint SetViewportOrg(int x, int y);
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    virtual CSize SetViewportExt(int cx, int cy);
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    virtual CSize SetWindowExt(int cx, int cy);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths) {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin) {
        return CSize(
            ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
    }
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    // Behind the virtual one: the first of a name takes the name's place in the table.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams) {
        return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    virtual BOOL GrayString(CBrush*, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                            int x, int y, int nWidth, int nHeight) {
        return ::GrayString(m_hDC, nullptr, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
    }
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
        return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
    }
};

// The context of a window that is being painted, from construction to destruction.
class CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd); // throws CResourceException
    virtual ~CPaintDC();

protected:
    HWND m_hWnd;

public:
    PAINTSTRUCT m_ps;
};

// The context of a window's client area; of the whole screen for a null window.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd); // throws CResourceException
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};
