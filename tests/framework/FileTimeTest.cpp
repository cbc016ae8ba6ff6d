// CFile::GetStatus and CTime.
#include <afx.h>
#include <gtest/gtest.h>
#include "tests/support/TempFolder.h"

TEST(FileStatus, OfAFileAndOfWrongNames) {
    const tests::TempFolder folder;
    const std::wstring file = folder / L"图纸.dwg", missing = folder / L"b.dwg", pattern = folder / L"*.dwg",
                       tooLong(300, L'x');
    tests::WriteBytes(file, "12345");
    CFileStatus status;
    ASSERT_TRUE(CFile::GetStatus(file.c_str(), status));
    EXPECT_NEAR(CTime::GetCurrentTime().GetTime(), status.m_mtime.GetTime(), 2);
    EXPECT_EQ(status.m_size, 5u);
    EXPECT_STREQ(status.m_szFullName, file.c_str());
    for (const wchar_t* name : {L"", missing.c_str(), pattern.c_str(), tooLong.c_str()})
        EXPECT_FALSE(CFile::GetStatus(name, status)) << tests::ToUtf8(name);
}

TEST(Time, LocalPartsAndBadDates) {
    SYSTEMTIME parts;
    ASSERT_TRUE(CTime(2024, 2, 29, 23, 59, 58).GetAsSystemTime(parts));
    EXPECT_TRUE(parts.wMonth == 2 && parts.wDay == 29 && parts.wHour == 23 && parts.wDayOfWeek == 4);
    EXPECT_TRUE(CTime(parts) == CTime(2024, 2, 29, 23, 59, 58));
    EXPECT_THROW(CTime{FILETIME{}}, CInvalidArgException*);
    EXPECT_THROW(CTime(2024, 13, 1, 0, 0, 0), CInvalidArgException*);
    EXPECT_EQ(CTime(SYSTEMTIME{}).GetTime(), 0);
}
