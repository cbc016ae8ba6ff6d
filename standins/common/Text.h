// Texts and settings of the stand-ins.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standins {

// The parts between separators; an empty text has no parts.
std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator);

// Full path of a file beside the DLL that this code is linked into.
std::wstring FileBesideModule(const wchar_t* name);

// Empty when the variable is not set.
std::wstring EnvironmentText(const wchar_t* name);

// A value of an INI file, empty when the file or the key is missing. The file is read in the system's code
// page, or as UTF-16 when it starts with that byte order mark.
std::wstring IniText(const std::wstring& file, const wchar_t* section, const wchar_t* key);

} // namespace standins
