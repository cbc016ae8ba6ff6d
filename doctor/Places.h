// Where files are looked for, and what their version resource tells.
#pragma once

#include <string>

#include "doctor/Options.h"

namespace doctor {

/// The file that a program of the host's folder gets for this DLL name: beside the library, beside the host,
/// in the system's folder, in those of PATH. Empty when there is none.
std::wstring Locate(const std::wstring& name, const Options& options);

/// In the Windows folder; such files are the system's business.
bool IsSystemFile(const std::wstring& path);

/// Path, and the version ("1.0.0") where there is one.
std::wstring Described(const std::wstring& path);

/// Text of ASCII characters, as names in DLLs are.
std::wstring Wide(const std::string& text);

} // namespace doctor
