// What the user entered in the sign dialog, and whether it can be signed with.
#pragma once

#include <afxwin.h>

namespace varnoke {

struct SSignInput {
    CString m_strUserName;
    CString m_strRole;
    CString m_strSealName;
    CString m_strDateFormat;
    CString m_strDateLocation;
    CString m_strFontSize;
    bool m_bColorValid = false;
    int m_nColor = 0; ///< red in the low byte, then green, then blue
    bool m_bCurrent = false;
    bool m_bOpened = false;
    bool m_bAll = false;
};

/// The string id of the message for the first fault, in the order in which the user is told; 0 when there is
/// none.
UINT FindSignFault(const SSignInput& input);

/// The leading decimal number of a font size text, 0 when it does not start with a number.
int FontSizeValue(const CString& text);

} // namespace varnoke
