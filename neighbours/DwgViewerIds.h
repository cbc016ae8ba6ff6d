// The DWG viewer control: its class and the dispatch id of the member that CDwgviewerctrl1 uses.
#pragma once

#include <guiddef.h>

namespace varnoke {

/// {18FA8006-8550-4EE2-9999-3D1000839811}; Varnoke.rc names it as the class of control 4045.
inline constexpr CLSID kDwgViewerClass = {
    0x18fa8006, 0x8550, 0x4ee2, {0x99, 0x99, 0x3d, 0x10, 0x00, 0x83, 0x98, 0x11}};

/// Method (BSTR drawing path) -> long: shows the drawing; 1 when it could be shown, else 0.
inline constexpr long kDwgViewerOpen = 1;

} // namespace varnoke
