// What one further entry of a sign log costs.
#pragma once

#include "bench/Workspace.h"
#include "varnoke/PLMInteract.h"

namespace bench {

/// Milliseconds that adding one entry to a record of `entries` entries takes, and that the bare parser takes
/// to load and save that record. The model configuration must be loaded.
void MeasureLogging(const Workspace& workspace, CPLMInteract& interact, int entries, double& bare,
                    double& logging);

} // namespace bench
