// A log of what the library does, for whoever looks for the reason of a failure. It is off until it is
// switched on, in section "Trace" of the settings or by environment variables; a debugger gets every line
// anyway.
#pragma once

#include "base/Text.h"

namespace varnoke {

enum class TraceLevel {
    Off = 0,
    Failures = 1,   ///< failed operations with their causes, and every exception that ends in the library
    Operations = 2, ///< every exported operation with its result
    Calls = 3,      ///< also every call of the signing server and the server access library
};

/// Reads the settings again: when the library is loaded, and at each Initialize.
void ConfigureTrace() noexcept;

/// Whether lines of that level go anywhere; to be asked before a line is put together.
bool IsTracing(TraceLevel wanted) noexcept;

/// Writes a line with date, time, process and thread in front, and begins a new file when the old one has
/// grown too large. Several processes and threads may write to one file. A failure is nobody's concern.
void WriteTrace(base::TextRef text) noexcept;

} // namespace varnoke
