// The common controls.
#include <afxcmn.h>
#include <afxdtctl.h>

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

void CProgressCtrl::SetRange32(int nLower, int nUpper) {
    SendMessage(PBM_SETRANGE32, nLower, nUpper);
}

int CProgressCtrl::GetPos() const {
    return static_cast<int>(SendMessage(PBM_GETPOS));
}

int CProgressCtrl::SetPos(int nPos) {
    return static_cast<int>(SendMessage(PBM_SETPOS, nPos));
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME pTimeDest) const {
    return static_cast<DWORD>(SendMessage(DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(pTimeDest)));
}
