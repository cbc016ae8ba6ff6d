// The checks, in the order of the report. Each prints its findings.
#pragma once

#include <string>
#include <vector>

#include "doctor/Options.h"
#include "doctor/Report.h"

namespace doctor {

/// The library, its neighbours and what they need: found, for 64 bits, complete, loadable, real. Gives the
/// DLLs that can be used, by name.
std::vector<std::wstring> CheckFiles(const Options& options, Report& report);

/// Complains of a file that is a stand-in for what the name tells, unless stand-ins are expected.
void CheckStandIn(const std::wstring& name, const std::wstring& file, const Options& options, Report& report);

/// Encoding, keys and values of the settings file; whether it can be written.
void CheckSettings(const std::wstring& file, Report& report);

/// The signing server: registration, file, methods, address, and with --login its login.
void CheckSignServer(const std::wstring& settings, const Options& options, Report& report);

/// The model configuration and its three parts. `usable` are the DLLs that CheckFiles gave.
void CheckModel(const std::vector<std::wstring>& usable, const Options& options, Report& report);

/// The controls of the dialogs, and the system's XML parser.
void CheckControls(const Options& options, Report& report);

/// The documents' folder: writable, with room, its sign record free.
void CheckWorkFolder(const Options& options, Report& report);

/// Whether the address takes a connection.
void CheckAddress(const std::wstring& host, const std::wstring& port, const Options& options, Report& report);

} // namespace doctor
