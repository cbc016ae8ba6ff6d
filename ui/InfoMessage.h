// The library's message box.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// Shows `text` with the caption "提示" and the information icon, owned by `parent` (may be null), and waits
/// for OK. Returns 1; 0 for an empty text, which shows nothing.
int ShowInfo(const CString& text, CWnd* parent);

} // namespace varnoke
