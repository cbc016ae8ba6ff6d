// The date and time picker.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

class CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)
public:
    // GDT_VALID, or GDT_NONE when the picker shows no date; the time is untouched then.
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const;
};
