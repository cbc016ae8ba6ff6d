// Text, path and settings helpers of the stand-ins.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"

namespace standins {

// The parts between separators; an empty text has no parts.
std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator);

// Folder and name with one backslash between them.
std::wstring JoinPath(std::wstring_view folder, std::wstring_view name);

// The folder part of a path, fit to be a folder's path itself: up to and with the last separator, "." or
// "C:." for a path without one.
std::wstring ParentFolder(const std::wstring& path);

bool FileExists(const std::wstring& path);

// Writes a new file in UTF-8 through to the disk, or over an old one; false on failure.
bool WriteTextFile(const std::wstring& path, std::wstring_view text);

// The folder of the DLL that this code is linked into, with its closing backslash.
std::wstring ModuleFolder();

// Full path of that DLL.
std::wstring ModulePath();

// Empty when the variable is not set.
std::wstring EnvironmentText(const wchar_t* name);

// A value of an INI file, empty when the file or the key is missing. The file is read in the system's code
// page, or as UTF-16 when it starts with that byte order mark.
std::wstring IniText(const std::wstring& file, const wchar_t* section, const wchar_t* key);

} // namespace standins
