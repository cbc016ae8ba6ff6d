// What is measured on a number of documents.
#pragma once

#include "bench/Workspace.h"
#include "varnoke/PLMInteract.h"

#include <array>

namespace bench {

enum Cost {
    BareReading, ///< the bare parser: load and save a message
    Reading,     ///< the library: the same, and the records
    Release,     ///< of the records
    BareMerging, ///< the bare parser: load two messages, save one of the size of both
    Merging,     ///< a message into a kept one of the same size with other documents
    Tagging,     ///< both tags and the times of documents that are tagged already
    Returning,   ///< the return file, with every document signed
    BareLogging, ///< the bare parser: load and save a sign record
    Logging,     ///< one further entry of that record
    CostCount
};
/// Milliseconds.
using Costs = std::array<double, CostCount>;

Costs MeasureAll(const Workspace& workspace, CPLMInteract& interact, int documents);

} // namespace bench
