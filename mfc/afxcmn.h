// Objects over the common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

class CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl() = default;
    virtual ~CProgressCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, nLower, nUpper); }
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    // Gives the previous position.
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, nPos)); }
};
