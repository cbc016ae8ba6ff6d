// Device contexts. A context owns its handle: a painting one ends the painting, a client one gives it back.
#pragma once

#include <afx.h>
#include <atltypes.h>

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

    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);

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

// The context of a window's client area; of the whole screen for a null window.
class CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd); // throws CResourceException
    virtual ~CClientDC();

protected:
    HWND m_hWnd;
};
