// The command line of varnoke-doctor.
#pragma once

#include <string>

#include "doctor/Report.h"

namespace doctor {

struct Options {
    std::wstring library;   ///< folder of Varnoke.dll
    std::wstring host;      ///< folder of the CAD program
    std::wstring work;      ///< documents' folder; empty: not looked at
    int timeoutSeconds = 3; ///< for the network and for each trial
    bool login = false;
    bool standIns = false; ///< stand-ins are no fault
    ReportForm form;
};

/// False when the command line is unusable or asks for help or the like; `exitCode` is set then.
bool ReadOptions(int argc, wchar_t** argv, Options& options, int& exitCode);

constexpr int kExitGood = 0, kExitFaults = 1, kExitUsage = 2;

} // namespace doctor
