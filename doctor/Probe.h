// Trials of other makers' code. Each runs in a process of its own, which may crash or hang.
#pragma once

#include <string>
#include <vector>

#include "doctor/Options.h"

namespace doctor {

struct ProbeResult {
    bool ended = false;              ///< false: crashed, hung, or never began
    std::wstring startError;         ///< why it never began; otherwise empty
    std::vector<std::wstring> lines; ///< what the trial told
};

/// Runs this program as `--probe arguments...`, for at most the options' time.
ProbeResult RunProbe(const std::vector<std::wstring>& arguments, const Options& options);

/// Reports a trial that did not come to its end; `detail` tells what it was about.
void ReportBrokenProbe(const ProbeResult& probe, const std::wstring& subject, const std::wstring& detail,
                       Report& report);

/// The other side: the trial itself. Returns the exit code.
int AnswerProbe(const std::vector<std::wstring>& arguments);

// The trials, by name, with their arguments; each prints its result.
void ProbeLoad(const std::vector<std::wstring>& arguments); // DLL... -> "loaded" or the error
void ProbeServer(
    const std::vector<std::wstring>& arguments); // ProgID, method... -> "created", "1" or "0" each
void ProbeLogin(const std::vector<std::wstring>& arguments); // ProgID, method, settings file, Durvell.dll
void ProbeModel(const std::vector<std::wstring>& arguments); // Varnoke.dll, QORLocal.dll -> "1" or "0" each

} // namespace doctor
