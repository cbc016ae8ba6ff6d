// Fresh identifiers as text.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// A new GUID as 36 upper-case characters in 8-4-4-4-12 form, without braces. Empty when the system has none.
CString NewGuid();

} // namespace varnoke
