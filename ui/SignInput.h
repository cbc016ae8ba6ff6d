#pragma once

#include <afxwin.h>

namespace varnoke {

/// What the user entered in the sign dialog.
struct SignInput {
    CString userName;
    CString role;
    CString sealName;
    CString dateFormat;
    CString dateLocation;
    CString fontSize;
    bool colorValid = false;
    int color = 0; ///< red in the low byte, then green, then blue
    bool current = false;
    bool opened = false;
    bool all = false;
};

/// The string id of the message for the first fault, in the order in which the user is told; 0 when there is
/// none.
UINT FindSignFault(const SignInput& input);

/// The leading decimal number of a font size text, 0 when it does not start with a number.
int FontSizeValue(const CString& text);

} // namespace varnoke
