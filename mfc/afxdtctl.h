// The date and time picker.
#pragma once

#include <afxwin.h>
#include <commctrl.h>

class CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)
public:
    CDateTimeCtrl() = default;
    virtual ~CDateTimeCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // GDT_VALID, or GDT_NONE when the picker shows no date; the time is untouched then.
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const {
        return static_cast<DWORD>(SendMessage(DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(pTimeDest)));
    }
};
