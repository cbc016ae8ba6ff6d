// Whether something of a window can be seen in its dialog.
#pragma once
#include <windows.h>

namespace tests {

// False when windows that lie above it clip it away completely.
inline bool CanBeSeen(HWND window) {
    RECT box = {};
    if (window == nullptr) return false; // whose context would be the screen's
    const HDC dc = GetDC(window);
    const int region = GetClipBox(dc, &box);
    ReleaseDC(window, dc);
    return (region == SIMPLEREGION || region == COMPLEXREGION) && !IsRectEmpty(&box);
}

} // namespace tests
