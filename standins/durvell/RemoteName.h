// Rules for the names by which the server knows its files.
#pragma once

#include <string>
#include <string_view>

namespace durvell {

// Whether a name is one part of a path that names an ordinary file or folder: no separator, colon, wildcard,
// quote or control character, not "." or "..", no closing dot or blank, not a device ("NUL", "com1.dwg").
bool IsPlainName(std::wstring_view part);

// Turns a remote name into a path below the vault's file folder: parts with "/" or "\" between them, each of
// them a plain name. Empty for any other name.
std::wstring RelativePath(std::wstring_view remoteName);

} // namespace durvell
