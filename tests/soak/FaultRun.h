// A silent run with one failing call, for every call that it makes.
#pragma once

namespace soak {

/// Repeats the run with the 1st, the 2nd ... call failing until none is left. Ends the program with a line
/// that names the call when the library crashes, calls a failed step done, or leaves a file that is neither
/// the old nor the new one.
void RunFaults();

} // namespace soak
