// How a colour is written, and the colours that every list offers.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// "RGB(rrr, ggg, bbb)", each part in three decimal digits.
CString ColorText(COLORREF color);

/// Black, red, green, blue and white, in the order in which they are listed.
constexpr int kStandardColorCount = 5;
extern const COLORREF kStandardColors[kStandardColorCount];

} // namespace varnoke
