// Date styles: the texts that say how the date of a signature is written.
#pragma once

#include <afxwin.h>

#include "config/SettingDefaults.h"

namespace varnoke {

/// The styles offered to the user, in this order; the default comes first.
inline constexpr const wchar_t* kDateStyles[] = {
    kDefaultDateStyle,   L"YYYY年-MM月-DD日", L"YYYY/MM/DD",
    L"YYYY年/MM月/DD日", L"YYYY.MM.DD",       L"YYYY年.MM月.DD日",
};

struct CalendarDate {
    int year = 0;
    int month = 0; ///< from 1
    int day = 0;   ///< from 1
};

/// Today in local time.
CalendarDate Today();

/// What a style lacks, in the order in which it is looked for.
enum class DateStyleFault { None, Empty, NoYear, NoMonth, NoDay };

/// Checks that a style names year ("YYYY"), month ("M") and day ("D"); gives the first fault.
DateStyleFault CheckDateStyle(const CString& style);

/// The date in the given style: "YYYY" becomes the year in at least four digits, "MM" and "DD" the month and
/// the day in at least two, a single "M" and "D" in as many as needed; every other character stays as it is.
CString RenderDate(const CString& style, const CalendarDate& date);

} // namespace varnoke
