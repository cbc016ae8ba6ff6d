// Texts of the library's string table.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// The text of an IDS_ id; empty when it is missing.
CString ResourceText(UINT id);

} // namespace varnoke
