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

} // namespace

BOOL WINAPI CTime::IsValidFILETIME(const FILETIME& fileTime) noexcept {
    const ULONGLONG nTicks = TicksOf(fileTime);
    return nTicks >= EPOCH_AS_FILETIME && nTicks < LAST_AS_FILETIME;
}

CTime::CTime(const FILETIME& fileTime, int) {
    ATLENSURE(IsValidFILETIME(fileTime));
    m_time = static_cast<__time64_t>((TicksOf(fileTime) - EPOCH_AS_FILETIME) / TICKS_PER_SECOND);
}

int CTime::LocalPart(int tm::*part) const noexcept {
    struct tm local;
    return _localtime64_s(&local, &m_time) == 0 ? local.*part : 0;
}

} // namespace ATL
