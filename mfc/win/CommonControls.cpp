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

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const {
    SYSTEMTIME systemTime = {};
    const DWORD dwResult = GetTime(&systemTime);
    if (dwResult == GDT_VALID) timeDest = CTime(systemTime);
    return dwResult;
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew) {
    return static_cast<BOOL>(SendMessage(DTM_SETSYSTEMTIME, pTimeNew != nullptr ? GDT_VALID : GDT_NONE,
                                         reinterpret_cast<LPARAM>(pTimeNew)));
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew) {
    SYSTEMTIME systemTime = {};
    if (pTimeNew != nullptr && !pTimeNew->GetAsSystemTime(systemTime)) return FALSE;
    return SetTime(pTimeNew != nullptr ? &systemTime : nullptr);
}
