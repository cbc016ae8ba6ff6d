// Tells when a run was none of the real products.
#pragma once

namespace host {

/// A line with the stand-ins that this process has loaded so far; none without one.
void TellStandIns();

} // namespace host
