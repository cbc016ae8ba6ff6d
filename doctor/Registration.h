// What the registry tells about COM classes.
#pragma once

#include <string>

namespace doctor {

struct Registered {
    bool exists = false; ///< the class has an entry for 64-bit programs
    bool only32 = false; ///< it has one for 32-bit programs only
    std::wstring file;   ///< full path of the in-process server; empty without one
};

/// The class identifier of a ProgID, as text in braces; empty when it is not registered.
std::wstring ClassOfProgId(const std::wstring& progId);

Registered FindClass(const std::wstring& classId);

} // namespace doctor
