#pragma once

#include <afxwin.h>
#include <vector>

namespace varnoke {

/// How many of the lines a message box can show on the screen of `window` before its button leaves it. When
/// that is not all, there is room for one more line.
size_t LinesThatFit(const std::vector<CString>& lines, HWND window);

} // namespace varnoke
