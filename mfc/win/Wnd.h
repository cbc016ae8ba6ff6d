// CWnd: a window's object. Its windows are found per thread; a window belongs to the thread that made it.
#pragma once

#include "win/CmdTarget.h"
#include "win/DC.h"
#include "win/WinExceptions.h"

class CDataExchange;

#define MLF_SHOWONIDLE 0x0004

class CWnd : public CCmdTarget {
    DECLARE_DYNAMIC(CWnd)
public:
    HWND m_hWnd; // first field, so that a window object of another module can be read

    CWnd();
    virtual ~CWnd(); // destroys a window that is still attached
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    operator HWND() const { return m_hWnd; }
    // May be called through a null pointer, which callers rely on for "no parent window".
    HWND GetSafeHwnd() const { return reinterpret_cast<UINT_PTR>(this) == 0 ? nullptr : m_hWnd; }

    // The object attached to the window by this thread, else null.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    virtual void PreSubclassWindow();
    // Attach, and route the window's messages through this object; the window's own procedure is the default.
    BOOL SubclassWindow(HWND hWnd);

    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    DWORD GetStyle() const;
    void SetWindowText(LPCTSTR lpszString);
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;

    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    // Over the alternate owner, else over the owner, else on the work area of the screen; a child within
    // its parent. Never beyond the edges of the screen.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    void Invalidate(BOOL bErase = TRUE);
    void UpdateWindow();

    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Runs DoDataExchange; FALSE when it failed.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    // Members, by identifier, of the ActiveX control in this window. Failures throw COleException or
    // COleDispatchException.
    void AFX_CDECL InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                const BYTE* pbParamInfo, ...);
    void AFX_CDECL SetProperty(DISPID dwDispID, VARTYPE vtProp, ...);
    void GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const;

    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL PreTranslateInput(LPMSG lpMsg);
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    virtual BOOL CheckAutoCenter();
    // Hands the message in progress to this control, which was reached through its parent.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

protected:
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);

    virtual void DoDataExchange(CDataExchange* pDX);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // Default processing of the message in progress.
    LRESULT Default();
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);

    WNDPROC m_pfnSuper; // the window's own procedure while it is subclassed
    int m_nModalResult;
    UINT m_nFlags;

    void InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet, const BYTE* pbParamInfo,
                       va_list argList);

    DECLARE_MESSAGE_MAP()
};

#ifdef VARNOKE_MSABI
static_assert(offsetof(CWnd, m_hWnd) == 0x40 && sizeof(CWnd) <= 0xE8, "CWnd lies as MFC's does");
#endif

// A modal loop is under way, and it is to go on.
#define WF_MODALLOOP 0x0008
#define WF_CONTINUEMODAL 0x0010

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
