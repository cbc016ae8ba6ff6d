// Colour texts are what the combo boxes are searched by, so their form must not vary.
#include "ui/ColorText.h"

namespace varnoke {

const COLORREF kStandardColors[kStandardColorCount] = {RGB(0, 0, 0), RGB(255, 0, 0), RGB(0, 255, 0),
                                                       RGB(0, 0, 255), RGB(255, 255, 255)};

CString ColorText(COLORREF color) {
    CString text;
    text.Format(L"RGB(%.3d, %.3d, %.3d)", static_cast<int>(GetRValue(color)),
                static_cast<int>(GetGValue(color)), static_cast<int>(GetBValue(color)));
    return text;
}

} // namespace varnoke
