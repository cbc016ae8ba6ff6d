// What a check found: one line of the report.
#pragma once

#include <string>

namespace doctor {

enum class Level { Ok, Warning, Fault };

/// Why it is told. The texts of a reason are in Reasons.cpp.
struct Reason {
    const wchar_t* code; ///< stable, such as "neighbour.missing"
    Level level;
    const wchar_t* english; ///< {0} is the finding's subject, {1} its detail
    const wchar_t* englishRemedy;
    const wchar_t* chinese;
    const wchar_t* chineseRemedy;
};

struct Finding {
    const Reason* reason;
    std::wstring subject; ///< what was looked at: a file, a key, an address
    std::wstring detail;  ///< a path, a value, an error; may be empty
};

} // namespace doctor
