// Folders and files that the whole library refers to.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// Folder of Varnoke.dll with its trailing backslash; empty when it cannot be found.
CString ModuleFolder();

/// Full path of Varnoke.ini, beside the library; in the Windows folder, then under "C:", when the module
/// folder cannot be found. Never empty.
CString SettingsFilePath();

/// Full path of ModelConfig.Xml, beside QORLocal.dll; beside the host program while that module is not
/// loaded.
CString ModelConfigPath();

/// The system's temporary folder with its trailing backslash; empty on failure.
CString TemporaryFolder();

/// Folder and name with exactly the backslash that is missing between them.
CString JoinPath(const CString& folder, const CString& name);

} // namespace varnoke
