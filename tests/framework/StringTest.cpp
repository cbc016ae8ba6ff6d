// CString's operations on text.
#include <afx.h>
#include <gtest/gtest.h>

TEST(String, Cutting_IsLimitedToTheText) {
    const CString text(L"abcdef");
    const struct {
        CString result;
        const wchar_t* expected;
    } cases[] = {
        {text.Left(2), L"ab"},   {text.Left(-1), L""},     {text.Left(99), L"abcdef"},
        {text.Right(2), L"ef"},  {text.Right(-1), L""},    {text.Mid(2), L"cdef"},
        {text.Mid(2, 2), L"cd"}, {text.Mid(-5, 2), L"ab"}, {text.Mid(5, 99), L"f"},
        {text.Mid(6), L""},      {text.Mid(99, 1), L""},   {CString(L'x', 3), L"xxx"},
    };
    for (const auto& each : cases)
        EXPECT_STREQ(each.result, each.expected);
    EXPECT_EQ(text.Left(6).GetString(), text.GetString()) << "a whole text is shared";
}

TEST(String, SearchingAndReplacing) {
    CString text(L"C:\\dir\\图纸.dwg");
    const int found[] = {text.Find(L'\\', 3),    text.Find(L"图纸"),    text.Find(L"none"),
                         text.Find(L"C", -1),    text.Find(L"C", 99),   text.ReverseFind(L'\\'),
                         text.ReverseFind(L'/'), text.FindOneOf(L".:"), text.FindOneOf(L"?*")};
    const int expected[] = {6, 7, -1, -1, -1, 6, -1, 1, -1};
    for (size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(found[i], expected[i]) << "case " << i;
    EXPECT_EQ(text.Replace(L"\\", L"\\\\"), 2) << "replaced text is not searched again";
    EXPECT_EQ(text.Replace(L"dir", nullptr) + text.Replace(L"", L"x"), 1);
    EXPECT_STREQ(text, L"C:\\\\\\\\图纸.dwg");
}

TEST(String, Format) {
    CString text;
    text.Format(L"%s|%S|%hs|%ls", L"宽", "narrow", "narrow", L"wide");
    EXPECT_STREQ(text, L"宽|narrow|narrow|wide");
    text.Format(L"%.4d-%.2d %5.2f %I64d %x %c%%", 2024, 7, 1.5, 1LL << 40, 255, L'签');
    EXPECT_STREQ(text, L"2024-07  1.50 1099511627776 ff 签%");
    text.Format(L"%s", CString(L'y', 5000).GetString());
    EXPECT_EQ(text.GetLength(), 5000);
    text.Format(L"%d,", 1);
    text.AppendFormat(L"%d", 2);
    EXPECT_STREQ(text, L"1,2");
}
