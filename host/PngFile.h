// Pictures of windows.
#pragma once

#include <afxwin.h>

namespace host {

/// Saves what a visible window shows, frame and child windows included, as a PNG file. False on failure; then
/// no file is left. COM must be initialised on the calling thread.
bool SavePicture(HWND window, const CString& path);

} // namespace host
