// CFile::GetStatus and CTime.
#include <afx.h>
#include <gtest/gtest.h>
#include "tests/support/TempFolder.h"

namespace {

FILETIME UtcFileTime(WORD year, WORD month, WORD day, WORD hour, WORD minute, WORD second) {
    const SYSTEMTIME utc = {year, month, 0, day, hour, minute, second, 987};
    FILETIME time = {};
    SystemTimeToFileTime(&utc, &time);
    return time;
}

} // namespace

TEST(FileStatus, OfAFileAndOfWrongNames) {
    const tests::TempFolder folder;
    const std::wstring file = folder.Text() + L"\\图纸.dwg";
    tests::WriteBytes(file, "12345");
    const FILETIME modified = UtcFileTime(2023, 12, 31, 17, 8, 9);
    HANDLE handle = CreateFileW(file.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_TRUE(SetFileTime(handle, nullptr, nullptr, &modified));
    CloseHandle(handle);
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));

    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(file.c_str(), status));
    EXPECT_EQ(status.m_mtime.GetTime(), 1704042489) << "whole seconds since 1970";
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_EQ(status.m_attribute & (CFile::readOnly | CFile::hidden | CFile::directory),
              DWORD(CFile::readOnly | CFile::hidden));
    EXPECT_STREQ(status.m_szFullName, file.c_str());

    const std::wstring missing = folder.Text() + L"\\b.dwg", pattern = folder.Text() + L"\\*.dwg",
                       tooLong(300, L'x');
    for (const wchar_t* name : {L"", missing.c_str(), pattern.c_str(), tooLong.c_str()}) {
        EXPECT_FALSE(CFile::GetStatus(name, status)) << name;
    }
    EXPECT_FALSE(CFile::GetStatus(nullptr, status));
}

TEST(Time, LocalPartsRoundTrip) {
    const CTime time(2024, 2, 29, 23, 59, 58);
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth() * 100 + time.GetDay(), 229);
    EXPECT_EQ(time.GetHour() * 10000 + time.GetMinute() * 100 + time.GetSecond(), 235958);

    SYSTEMTIME parts;
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(parts.wDayOfWeek, 4) << "a Thursday";
    EXPECT_TRUE(CTime(parts) == time);
    EXPECT_LE(CTime::GetCurrentTime().GetTime() - _time64(nullptr), 1);
    EXPECT_TRUE(CTime(2024, 3, 1, 0, 0, 0) > time && time < CTime(time.GetTime() + 1));
}

TEST(Time, BadDatesThrowAndNoDateIsZero) {
    EXPECT_FALSE(CTime::IsValidFILETIME(FILETIME{}));
    EXPECT_FALSE(CTime::IsValidFILETIME(UtcFileTime(3001, 1, 2, 0, 0, 0)));
    EXPECT_THROW(CTime{FILETIME{}}, CInvalidArgException*);
    EXPECT_THROW(CTime(2024, 13, 1, 0, 0, 0), CInvalidArgException*);
    EXPECT_THROW(CTime(2024, 1, 1, 24, 0, 0), CInvalidArgException*);
    EXPECT_EQ(CTime(SYSTEMTIME{}).GetTime(), 0);
    EXPECT_EQ(CTime(-1).GetYear(), 1900) << "no calendar date";
}
