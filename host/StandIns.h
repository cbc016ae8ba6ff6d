// Which neighbours of a run were stand-ins.
#pragma once

namespace host {

/// A line with the stand-ins that this process has loaded so far; none without one.
void TellStandIns();

} // namespace host
