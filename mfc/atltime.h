// CTime: a moment in whole seconds, read in local time.
#pragma once
#include <afxver_.h>
#include <time.h>

namespace ATL {

/// Seconds since 1970-01-01 00:00 UTC; 0 is also what an unset or invalid time holds.
class CTime {
public:
    /// Whether a CTime can be made of it: from 1970-01-01 to 3000-12-31.
    static BOOL WINAPI IsValidFILETIME(const FILETIME& fileTime) noexcept;

    CTime() noexcept : m_time(0) {}
    /// The file time is UTC and must be a valid one; nDST does not matter to it.
    CTime(const FILETIME& fileTime, int nDST = -1);

    int GetYear() const noexcept { return LocalPart(&tm::tm_year) + 1900; }
    int GetMonth() const noexcept { return LocalPart(&tm::tm_mon) + 1; }
    int GetDay() const noexcept { return LocalPart(&tm::tm_mday); }
    int GetHour() const noexcept { return LocalPart(&tm::tm_hour); }
    int GetMinute() const noexcept { return LocalPart(&tm::tm_min); }
    int GetSecond() const noexcept { return LocalPart(&tm::tm_sec); }

private:
    int LocalPart(int tm::*part) const noexcept;

    __time64_t m_time;
};

} // namespace ATL

using ATL::CTime;
