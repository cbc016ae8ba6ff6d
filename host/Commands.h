// The program's commands and its exit codes.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Options.h"

namespace host {

/// Exit codes of the program.
enum ExitCode {
    kExitDone = 0,   ///< everything that was asked for was done
    kExitFailed = 1, ///< the machine failed: framework, return file
    kExitRefused =
        2,         ///< bad usage, something missing that was checked before the start, or a refused message
    kExitSome = 3, ///< some documents are signed
    kExitNone = 4, ///< no document is signed; nothing was merged or confirmed
    kExitLog = 5,  ///< documents are signed, but the sign log could not be written or sent
    kExitBusy = 6  ///< another run is at work in the folder
};

// Each command's options, and its work on the main thread, with the framework and COM ready. A command gives
// the exit code.
std::vector<OptionRule> BackSignRules();
int RunBackSign(const Options& options);
std::vector<OptionRule> AppendRules();
int RunAppend(const Options& options);
std::vector<OptionRule> LogRules();
int RunLog(const Options& options);
std::vector<OptionRule> StatusRules();
int RunStatus(const Options& options);
std::vector<OptionRule> SignRules();
int RunSign(const Options& options);
std::vector<OptionRule> OptionRules();
int RunOption(const Options& options);

/// Runs the command that the arguments (without the program's name) ask for; explains bad ones.
int RunCommand(const std::vector<CString>& arguments);

} // namespace host
