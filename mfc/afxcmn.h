// Objects over the common controls.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

class CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    void SetRange32(int nLower, int nUpper);
    int GetPos() const;
    int SetPos(int nPos); // gives the previous position
};
