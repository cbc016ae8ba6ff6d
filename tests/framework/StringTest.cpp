// CString's operations on text.
#include <afxdisp.h>
#include <gtest/gtest.h>

TEST(String, Cutting_IsLimitedToTheText) {
    const CString text(L"abcdef");
    const CString cut[] = {text.Left(-1),   text.Left(99),   text.Right(-1), text.Right(99),
                           text.Mid(-5, 2), text.Mid(5, 99), text.Mid(6),    text.Mid(99, 1)};
    const wchar_t* const expected[] = {L"", L"abcdef", L"", L"abcdef", L"ab", L"f", L"", L""};
    for (size_t i = 0; i < std::size(cut); ++i)
        EXPECT_STREQ(cut[i], expected[i]) << "case " << i;
}

TEST(String, SearchingAndReplacing) {
    CString text(L"C:\\dir\\图纸.dwg");
    const int found[] = {text.Find(L'\\', 3),  text.Find(L"图纸"),     text.Find(L"C", -1),
                         text.Find(L"C", 99),  text.ReverseFind(L'/'), text.FindOneOf(L".:"),
                         text.FindOneOf(L"?*")};
    const int expected[] = {6, 7, -1, -1, -1, 1, -1};
    for (size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(found[i], expected[i]) << "case " << i;
    EXPECT_EQ(text.Replace(L"\\", L"\\\\"), 2) << "replaced text is not searched again";
    EXPECT_EQ(text.Replace(L"dir", nullptr) + text.Replace(L"", L"x"), 1);
    EXPECT_STREQ(text, L"C:\\\\\\\\图纸.dwg");
}

TEST(String, Format) {
    CString text;
    text.Format(L"%s|%S|%hs %.4d-%.2d %5.2f %I64d %c%%", L"宽", "narrow", "narrow", 2024, 7, 1.5, 1LL << 40,
                L'签');
    EXPECT_STREQ(text, L"宽|narrow|narrow 2024-07  1.50 1099511627776 签%");
    text.Format(L"%s", CString(L'y', 5000).GetString());
    EXPECT_EQ(text.GetLength(), 5000);
}
