// Both dialogs treat a missing or unusable colour alike.
#include "ui/StoredColor.h"

#include "varnoke/INIConfig.h"

namespace varnoke {

COLORREF StoredTextColor(const CINIConfig* settings) {
    if (!settings) return RGB(0, 0, 0);
    const long color = settings->GetDateTextColor();
    return color < 0 ? RGB(255, 255, 255) : static_cast<COLORREF>(color);
}

} // namespace varnoke
