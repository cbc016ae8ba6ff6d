// Which encoding a file is taken for, by the system's code page.
#include <gtest/gtest.h>
#include "base/TextEncoding.h"

namespace {

using base::TextEncoding;

TEST(TextEncoding, Of_BytesAndTheSystemsCodePage) {
    const std::string ansi936 = "x=\xD7\xF3\xC9\xCF", utf8 = "x=\xE5\xB7\xA6\xE4\xB8\x8A"; // 左上
    const struct {
        std::string bytes;
        UINT codePage;
        TextEncoding expected;
    } kCases[] = {
        {"", 936, TextEncoding::Ascii},
        {"[A]\r\nx=1\r\n", 1252, TextEncoding::Ascii},
        {std::string("\xFF\xFE[\0", 4), 1252, TextEncoding::Utf16},
        {std::string("\xFE\xFF\0[", 4), 1252, TextEncoding::Other},
        {std::string("[\0A\0", 4), 936, TextEncoding::Other},
        {"\xEF\xBB\xBF[A]", 936, TextEncoding::Utf8Mark},
        {utf8, 936, TextEncoding::Utf8},
        {utf8, 1252, TextEncoding::Utf8},
        {utf8, CP_UTF8, TextEncoding::SystemCodePage},
        {ansi936, 936, TextEncoding::SystemCodePage},
        {ansi936, 1252, TextEncoding::Other},
        {ansi936, CP_UTF8, TextEncoding::Other},
        {"x=\xC4\xBF\xC2\xBC", 936, TextEncoding::SystemCodePage}, // 目录, which is valid UTF-8 too
        {"x=\xC4\xBF\xC2\xBC", 1252, TextEncoding::Utf8},
        {"x=\xFF", 936, TextEncoding::Other},
        {"x=\xFC", 1252, TextEncoding::SystemCodePage},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(base::EncodingOf(c.bytes, c.codePage), c.expected) << c.bytes << " on " << c.codePage;
}

} // namespace
