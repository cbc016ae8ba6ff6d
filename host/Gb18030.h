// GB18030, which not every system has.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// False for bytes that are not GB18030. One- and two-byte characters are those of code page 936.
bool DecodeGb18030(std::string_view bytes, std::wstring& text);

} // namespace host
