// What every command of the host is.
#pragma once

#include <afxwin.h>

#include <memory>

#include "host/Options.h"

namespace host {

/// Exit codes of the program.
enum ExitCode {
    exitDone = 0,    ///< everything that was asked for was done
    exitFailed = 1,  ///< the machine failed: framework, return file
    exitRefused = 2, ///< bad usage, a folder or file that isn't there, or a refused message
    exitSome = 3,    ///< some documents were signed
    exitNone = 4     ///< no document was signed; nothing was merged, found or confirmed
};

class Command {
public:
    virtual ~Command() = default;
    /// Carries the command out on the main thread, with the framework and COM ready. Returns the exit code.
    virtual int Run(const Options& options) = 0;
};

} // namespace host
