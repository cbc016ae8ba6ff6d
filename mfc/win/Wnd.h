// CWnd: a window's object. Its windows are found per thread; a window belongs to the thread that made it.
#pragma once

#include "win/CmdTarget.h"
#include "win/DC.h"
#include "win/WinExceptions.h"

class CDataExchange;
class CFont;
class CMenu;
class COleControlContainer;
class COleControlSite;
class CScrollBar;
struct CCreateContext;
struct IAccessibleProxy;
struct _AFX_OCC_DIALOG_INFO;
struct tagTOOLINFOW;
struct tagTOUCHINPUT;

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

    virtual void OnFinalRelease() override;
    virtual void PreSubclassWindow();
    // Attach, and route the window's messages through this object; the window's own procedure is the default.
    BOOL SubclassWindow(HWND hWnd);

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                          LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = 0);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }

    DWORD GetStyle() const;
    void SetWindowText(LPCTSTR lpszString);
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;

    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    // Over the alternate owner, else over the owner, else on the work area of the screen; a child within
    // its parent. Never beyond the edges of the screen.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE);
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }

    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    virtual CMenu* GetMenu() const;
    virtual BOOL SetMenu(CMenu* pMenu);

    // Runs DoDataExchange; FALSE when it failed.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);

    virtual INT_PTR OnToolHitTest(CPoint point, tagTOOLINFOW* pTI) const;
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelpW(DWORD_PTR dwData, UINT nCmd = 0x000F);
    virtual void WinHelpInternal(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

    virtual void OnDrawIconicThumbnailOrLivePreview(CDC& dc, CRect rect, CSize szRequired, BOOL bIsThumbnail,
                                                    BOOL& bAlphaChannelSet);

    // Members, by identifier, of the ActiveX control in this window. Failures throw COleException or
    // COleDispatchException.
    void AFX_CDECL InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                const BYTE* pbParamInfo, ...);
    void AFX_CDECL SetProperty(DISPID dwDispID, VARTYPE vtProp, ...);
    void GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const;

    BOOL PreTranslateInput(LPMSG lpMsg);
    // The owner for a dialog of that parent as the system wants it: a top-level window; without a parent, the
    // thread's window that the user works in.
    static HWND PASCAL GetSafeOwner_(HWND hParent, HWND* pWndTop);
    // Hands the message in progress to this control, which was reached through its parent.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    // Accessibility is left to the system.
    virtual HRESULT EnsureStdObj();
    virtual HRESULT get_accParent(IDispatch** ppdispParent);
    virtual HRESULT get_accChildCount(long* pcountChildren);
    virtual HRESULT get_accChild(VARIANT varChild, IDispatch** ppdispChild);
    virtual HRESULT get_accName(VARIANT varChild, BSTR* pszName);
    virtual HRESULT get_accValue(VARIANT varChild, BSTR* pszValue);
    virtual HRESULT get_accDescription(VARIANT varChild, BSTR* pszDescription);
    virtual HRESULT get_accRole(VARIANT varChild, VARIANT* pvarRole);
    virtual HRESULT get_accState(VARIANT varChild, VARIANT* pvarState);
    virtual HRESULT get_accHelp(VARIANT varChild, BSTR* pszHelp);
    virtual HRESULT get_accHelpTopic(BSTR* pszHelpFile, VARIANT varChild, long* pidTopic);
    virtual HRESULT get_accKeyboardShortcut(VARIANT varChild, BSTR* pszKeyboardShortcut);
    virtual HRESULT get_accFocus(VARIANT* pvarChild);
    virtual HRESULT get_accSelection(VARIANT* pvarChildren);
    virtual HRESULT get_accDefaultAction(VARIANT varChild, BSTR* pszDefaultAction);
    virtual HRESULT accSelect(long flagsSelect, VARIANT varChild);
    virtual HRESULT accLocation(long* pxLeft, long* pyTop, long* pcxWidth, long* pcyHeight, VARIANT varChild);
    virtual HRESULT accNavigate(long navDir, VARIANT varStart, VARIANT* pvarEndUpAt);
    virtual HRESULT accHitTest(long xLeft, long yTop, VARIANT* pvarChild);
    virtual HRESULT accDoDefaultAction(VARIANT varChild);
    virtual HRESULT put_accName(VARIANT varChild, BSTR szName);
    virtual HRESULT put_accValue(VARIANT varChild, BSTR szValue);
    virtual HRESULT SetProxy(IAccessibleProxy* pProxy);
    virtual HRESULT CreateAccessibleProxy(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

protected:
    friend LRESULT CALLBACK AfxWndProc(HWND, UINT, WPARAM, LPARAM);

    virtual const AFX_INTERFACEMAP* GetInterfaceMap() const override;
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual WNDPROC* GetSuperWndProcAddr();
    virtual void DoDataExchange(CDataExchange*) {}

public:
    virtual void BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
    virtual void EndModalState() { ::EnableWindow(m_hWnd, TRUE); }
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL OnAmbientProperty(COleControlSite* pSite, DISPID dispid, VARIANT* pvar);

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void PostNcDestroy();
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnTouchInputs(UINT nInputsCount, tagTOUCHINPUT* pInputs);
    virtual BOOL OnTouchInput(CPoint pt, int nInputNumber, int nInputsCount, tagTOUCHINPUT* pInput);
    virtual ULONG GetGestureStatus(CPoint ptTouch);
    virtual BOOL OnGestureZoom(CPoint ptCenter, long lDelta);
    virtual BOOL OnGesturePan(CPoint ptFrom, CPoint ptTo);
    virtual BOOL OnGestureRotate(CPoint ptCenter, double dblAngle);
    virtual BOOL OnGestureTwoFingerTap(CPoint ptCenter);
    virtual BOOL OnGesturePressAndTap(CPoint ptPress, long lDelta);
    virtual void ResizeDynamicLayout();

public:
    virtual BOOL CheckAutoCenter();
    virtual BOOL IsFrameWnd() const;

protected:
    virtual BOOL CreateControlContainer(COleControlContainer** ppContainer);
    virtual BOOL CreateControlSite(COleControlContainer* pContainer, COleControlSite** ppSite, UINT nID,
                                   REFCLSID clsid);
    virtual BOOL SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo);
    virtual _AFX_OCC_DIALOG_INFO* GetOccDialogInfo();

    // Default processing of the message in progress.
    LRESULT Default();
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);

    BYTE m_reserved1[0x60];
    UINT m_nFlags;
    WNDPROC m_pfnSuper; // the window's own procedure while it is subclassed
    int m_nModalResult;
    BYTE m_reserved2[0x2C];

    void InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet, const BYTE* pbParamInfo,
                       va_list argList);

    DECLARE_MESSAGE_MAP()
};

// A modal loop is under way, and it is to go on.
#define WF_MODALLOOP 0x0008
#define WF_CONTINUEMODAL 0x0010

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
