// The text colour that the sign and the option dialog start from.
#pragma once

#include <afxwin.h>

class CINIConfig;

namespace varnoke {

/// Black without settings, else the stored colour; white for a negative one.
COLORREF StoredTextColor(const CINIConfig* settings);

} // namespace varnoke
