// The hidden folder "SignData", in which the library keeps its files beside the documents.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// Path of "SignData" below a folder, with its trailing backslash.
CString SignDataFolder(const CString& folder);

/// The same, after creating it where it is missing and hiding it; failures show when a file is written there.
/// Temporary files that a killed process left there go when a process turns to the folder.
CString MakeSignDataFolder(const CString& folder);

/// Resets a file's attributes to normal, so that it can be replaced; a missing file is no error.
void MakeWritable(const CString& path);

} // namespace varnoke
