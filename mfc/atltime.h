// CTime: a moment in whole seconds, read and made in local time.
#pragma once
#include <afxver_.h>
#include <time.h>

namespace ATL {

/// Seconds since 1970-01-01 00:00 UTC; 0 is also what an unset or invalid time holds.
class CTime {
public:
    static CTime WINAPI GetCurrentTime() noexcept;
    /// Whether the record names a day from 1900-01-01 to 3000-12-31 that a CTime can be made of.
    static BOOL WINAPI IsValidFILETIME(const FILETIME& fileTime) noexcept;

    CTime() noexcept : m_time(0) {}
    CTime(__time64_t time) noexcept : m_time(time) {}
    /// Local time; nDST is above 0 for daylight saving, 0 for standard, -1 to find out. Bad values throw.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(const SYSTEMTIME& systemTime, int nDST = -1);
    /// The file time is UTC.
    CTime(const FILETIME& fileTime, int nDST = -1);

    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

    __time64_t GetTime() const noexcept { return m_time; }
    /// False for a time that has no calendar date.
    bool GetAsSystemTime(SYSTEMTIME& systemTime) const noexcept;

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
