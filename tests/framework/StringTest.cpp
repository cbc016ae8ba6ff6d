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

TEST(String, Searching) {
    const CString path(L"C:\\dir\\图纸.dwg");
    const int found[] = {path.Find(L'\\'),        path.Find(L'\\', 3),    path.Find(L"图纸"),
                         path.Find(L"none"),      path.Find(L"C", -1),    path.Find(L"C", 99),
                         path.ReverseFind(L'\\'), path.ReverseFind(L'/'), path.FindOneOf(L".:"),
                         path.FindOneOf(L"?*")};
    const int expected[] = {2, 6, 7, -1, -1, -1, 6, -1, 1, -1};
    for (size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(found[i], expected[i]) << "case " << i;
}

TEST(String, ReplacingAndRemoving) {
    CString text(L"aXbXXc");
    EXPECT_EQ(text.Replace(L"X", L"--"), 3);
    EXPECT_STREQ(text, L"a--b----c");
    EXPECT_EQ(text.Replace(L"--", nullptr), 3);
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L'b', L'B'), 1);
    EXPECT_STREQ(text, L"aBc");
    EXPECT_EQ(text.Replace(L"c", L"cc"), 1) << "replaced text is not searched again";
    EXPECT_EQ(text.Remove(L'c'), 2);
    EXPECT_EQ(text.Delete(1, 99), 1);
    EXPECT_EQ(text.Delete(9, 1), 1);
    EXPECT_STREQ(text, L"a");
}

TEST(String, TrimmingComparisonAndSums) {
    EXPECT_STREQ(CString(L" \t\r\n a b \n").Trim(), L"a b");
    EXPECT_STREQ(CString(L"   ").Trim(), L"");
    EXPECT_STREQ(CString(L"\"quoted\"").Trim(L'"'), L"quoted");
    EXPECT_STREQ(CString(L"{(x)}").Trim(L"{}()"), L"x");

    const CString text(L"Abc");
    EXPECT_TRUE(text == L"Abc" && L"Abc" == text && text != L"abc" && text != CString());
    EXPECT_TRUE(text < L"abc" && L"Abb" < text && text > CString(L"AbC"));
    EXPECT_EQ(text.CompareNoCase(L"aBC"), 0);
    EXPECT_NE(text.CompareNoCase(L"aB"), 0);
    EXPECT_STREQ(CString(L"Abc图Z").MakeUpper(), L"ABC图Z");
    EXPECT_STREQ(L'0' + (L"a" + text + L'c' + CString(L"d") + L"e"), L"0aAbccde");
}

TEST(String, Format) {
    CString text;
    text.Format(L"%s|%S|%hs|%ls", L"宽", "narrow", "narrow", L"wide");
    EXPECT_STREQ(text, L"宽|narrow|narrow|wide");
    text.Format(L"%.4d-%.2d %5.2f %I64d %x %c%%", 2024, 7, 1.5, 1LL << 40, 255, L'签');
    EXPECT_STREQ(text, L"2024-07  1.50 1099511627776 ff 签%");
    text.Format(L"%s", CString(L'y', 5000).GetString());
    EXPECT_EQ(text.GetLength(), 5000);
    text.Format(L"");
    text.AppendFormat(L"%d,", 1);
    text.AppendFormat(L"%d", 2);
    EXPECT_STREQ(text, L"1,2");
}

TEST(String, SystemAndResourceTexts) {
    const CString withZero(L"a\0签", 3);
    BSTR copy = withZero.AllocSysString();
    EXPECT_EQ(SysStringLen(copy), 3u);
    EXPECT_EQ(memcmp(copy, withZero.GetString(), 4 * sizeof(wchar_t)), 0);
    SysFreeString(copy);

    CString text(L"kept");
    EXPECT_FALSE(text.LoadString(65000));
    EXPECT_STREQ(text, L"kept");
    EXPECT_TRUE(text.LoadString(GetModuleHandleW(L"user32.dll"), 2)) << "a text of the system";
    EXPECT_STRNE(text, L"kept");
}
