// A log of calls that a test can read while it is being written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standins {

// Appends one UTF-8 line to the file: local time, the call's name, its arguments, "=> result", with tabs
// between them; control characters of an argument are written as blanks. Several threads and processes may
// append to the same file. A journal that can't be written is skipped: it must not change the call's result.
void AppendJournal(const std::wstring& file, std::wstring_view call,
                   const std::vector<std::wstring>& arguments, long result);

} // namespace standins
