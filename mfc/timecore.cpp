// CTime over the C run-time library's 64-bit calendar functions.
#include <afx.h>

namespace ATL {

namespace {

constexpr ULONGLONG TICKS_PER_SECOND = 10000000;               // file times count steps of 100 ns
constexpr ULONGLONG EPOCH_AS_FILETIME = 116444736000000000ULL; // 1970-01-01 in such steps since 1601
constexpr ULONGLONG LAST_AS_FILETIME = 441797328000000000ULL;  // 3001-01-01, the calendar functions' end

ULONGLONG TicksOf(const FILETIME& fileTime) noexcept {
    return static_cast<ULONGLONG>(fileTime.dwHighDateTime) << 32 | fileTime.dwLowDateTime;
}

__time64_t LocalToTime(const SYSTEMTIME& local, int nDST) {
    ENSURE(local.wYear >= 1900 && local.wMonth >= 1 && local.wMonth <= 12);
    ENSURE(local.wDay >= 1 && local.wDay <= 31 && local.wHour <= 23 && local.wMinute <= 59 &&
           local.wSecond <= 59);
    struct tm parts = {};
    parts.tm_year = local.wYear - 1900;
    parts.tm_mon = local.wMonth - 1;
    parts.tm_mday = local.wDay;
    parts.tm_hour = local.wHour;
    parts.tm_min = local.wMinute;
    parts.tm_sec = local.wSecond;
    parts.tm_isdst = nDST;
    const __time64_t time = _mktime64(&parts);
    ENSURE(time != -1);
    return time;
}

} // namespace

CTime WINAPI CTime::GetCurrentTime() noexcept {
    return CTime(_time64(nullptr));
}

BOOL WINAPI CTime::IsValidFILETIME(const FILETIME& fileTime) noexcept {
    const ULONGLONG nTicks = TicksOf(fileTime);
    return nTicks >= EPOCH_AS_FILETIME && nTicks < LAST_AS_FILETIME;
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST) {
    ENSURE(nYear >= 1900 && nYear <= 3000 && nMonth >= 1 && nMonth <= 12 && nDay >= 1 && nDay <= 31);
    ENSURE(nHour >= 0 && nHour <= 23 && nMin >= 0 && nMin <= 59 && nSec >= 0 && nSec <= 59);
    const auto word = [](int n) { return static_cast<WORD>(n); };
    const SYSTEMTIME local = {word(nYear), word(nMonth), 0,          word(nDay),
                              word(nHour), word(nMin),   word(nSec), 0};
    m_time = LocalToTime(local, nDST);
}

CTime::CTime(const SYSTEMTIME& systemTime, int nDST) {
    // A record without a year is what controls hand out for "no date".
    m_time = systemTime.wYear < 1900 ? 0 : LocalToTime(systemTime, nDST);
}

CTime::CTime(const FILETIME& fileTime, int) {
    ENSURE(IsValidFILETIME(fileTime));
    m_time = static_cast<__time64_t>((TicksOf(fileTime) - EPOCH_AS_FILETIME) / TICKS_PER_SECOND);
}

bool CTime::GetAsSystemTime(SYSTEMTIME& systemTime) const noexcept {
    struct tm local;
    if (_localtime64_s(&local, &m_time) != 0) return false;
    const auto word = [](int n) { return static_cast<WORD>(n); };
    systemTime = {
        word(local.tm_year + 1900), word(local.tm_mon + 1), word(local.tm_wday), word(local.tm_mday),
        word(local.tm_hour),        word(local.tm_min),     word(local.tm_sec),  0};
    return true;
}

int CTime::LocalPart(int tm::*part) const noexcept {
    struct tm local;
    return _localtime64_s(&local, &m_time) == 0 ? local.*part : 0;
}

} // namespace ATL
