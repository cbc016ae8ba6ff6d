#pragma once

#include <afxwin.h>

namespace varnoke {

/// The length on the device of `dc` of so many pixels at 96 dots per inch.
inline int ScaledPixels(HDC dc, int pixels) {
    return ::MulDiv(pixels, ::GetDeviceCaps(dc, LOGPIXELSX), 96);
}

/// The same on the screen.
inline int ScaledPixels(int pixels) {
    const CClientDC screen(nullptr);
    return ScaledPixels(screen, pixels);
}

} // namespace varnoke
