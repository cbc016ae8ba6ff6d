// Whole silent runs and what they cost.
#pragma once

namespace bench {

/// Milliseconds: the process's user time, and by the clock.
struct Spent {
    double user;
    double wall;
};

struct RunCosts {
    Spent bare;   ///< each file copied there and back, and one line appended to a text file
    Spent silent; ///< the run without a sign log
    Spent logged; ///< the run with one
};

/// Runs over this many documents, each in folders of its own that are removed afterwards. Ends the program
/// with a line when an operation fails.
RunCosts MeasureRuns(int documents);

} // namespace bench
