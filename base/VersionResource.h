// What a program file says of itself in its version resource.
#pragma once

#include <string>

#include "base/Text.h"

namespace base {

/// A text of the file's version resource, such as "FileVersion"; empty without it.
std::wstring VersionText(TextRef path, const wchar_t* name);

/// Whether the file calls itself a stand-in of this project for a neighbour.
bool IsStandIn(TextRef path);

} // namespace base
