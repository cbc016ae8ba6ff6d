// Paths and folders of a run.
#pragma once

#include <afxwin.h>

namespace host {

/// Folder and name with exactly the backslash that is missing between them.
CString JoinPath(const CString& folder, const CString& name);

/// The absolute path, without a trailing backslash unless it is a root. Empty when the path can't be formed.
CString FullPath(const CString& path);

/// The path up to its last backslash, without it unless it is a root; empty when there is none.
CString ParentFolder(const CString& path);

bool FolderExists(const CString& path);
bool FileExists(const CString& path);

/// True when the folder is there afterwards. Only the last folder of the path is made.
bool EnsureFolder(const CString& path);

/// Removes a folder with everything in it, whatever its attributes.
void RemoveFolder(const CString& path);

/// Folder of a loaded module, without a trailing backslash; of this program for null.
CString ModuleFolder(const wchar_t* module);

/// Where the library keeps its own files about the documents of a folder.
CString SignDataFile(const CString& folder, const wchar_t* name);

} // namespace host
