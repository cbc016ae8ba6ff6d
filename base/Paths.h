// Paths of any length. A "prefix" is a folder to whose text a name can be appended as it is: it ends in a
// separator (or a drive's colon), or is empty for the current folder. Functions that give one are named so.
#pragma once

#include <windows.h>

#include <string>

#include "base/Text.h"

namespace base {

/// Folder and name with the one backslash that is missing between them; the name alone for an empty folder.
std::wstring JoinPath(TextRef folder, TextRef name);

/// The path up to and including its last separator ("\", "/" or a drive's colon).
std::wstring FolderPrefix(TextRef path);

/// The folder without the backslashes that it ends in; a root keeps its one.
std::wstring WithoutBackslash(TextRef folder);

/// The absolute path, with backslashes only; empty on failure.
std::wstring FullPath(TextRef path);

/// Full path of a loaded module's file (null: the program's); empty on failure.
std::wstring ModulePath(HMODULE module);

/// The DLL or program that this code is linked into.
HMODULE ThisModule();

/// The system's temporary folder; empty on failure.
std::wstring TemporaryFolderPrefix();

/// Folders of Windows itself, without a backslash behind them; empty on failure.
std::wstring WindowsFolder();
std::wstring SystemFolder();

/// The text with environment variables in the place of "%NAME%".
std::wstring WithVariables(TextRef text);

/// Full path of the first file of that name in the folders of the variable PATH; empty when there is none.
std::wstring FindOnPath(TextRef name);

bool FolderExists(TextRef path);
/// False for a folder.
bool FileExists(TextRef path);

/// Whether Windows takes a file name for a device ("NUL", "com1.dwg"), which it does in any folder, with any
/// extension and with blanks behind the name.
bool IsDeviceName(TextRef name);

} // namespace base
