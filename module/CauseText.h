// What a reason code says to a user.
#pragma once

#include "varnoke/Cause.h"

namespace varnoke {

/// One sentence without its full stop; lives on.
const wchar_t* TextOf(Cause cause);

} // namespace varnoke
