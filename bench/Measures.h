// What is measured: each function does one piece of work on a number of documents and gives its milliseconds.
#pragma once

#include "bench/Workspace.h"
#include "plm/PLMInteract.h"

namespace bench {

struct ReadingTime {
    double parser;  ///< the bare parser: load and save
    double reading; ///< the library: the same, and the records
    double release; ///< of the records
};
ReadingTime MeasureReading(const Workspace& workspace, CPLMInteract& interact, int documents);

struct MergeTime {
    double parser; ///< the bare parser: load both messages, save one of the size of both
    double merge;
};
/// Merges a message into a kept one of the same size with other documents.
MergeTime MeasureMerge(const Workspace& workspace, CPLMInteract& interact, int documents);

/// Resets both tags and records the times of documents that are there already.
double MeasureTags(const Workspace& workspace, CPLMInteract& interact, int documents);

/// Writes the return file with every document signed.
double MeasureReturnFile(const Workspace& workspace, CPLMInteract& interact, int documents);

} // namespace bench
