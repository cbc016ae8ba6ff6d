// The table of all reasons.
#pragma once

#include "doctor/Finding.h"

namespace doctor {

/// Throws std::logic_error for a code that is not in the table.
const Reason& ReasonFor(const wchar_t* code);

/// Prints the table: code, level, text and remedy of each reason.
void PrintReasons(bool chinese);

} // namespace doctor
