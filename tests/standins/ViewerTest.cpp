// The DWG viewer control: pictures of good drawings, empty frame for damaged ones.
#include <windows.h>
#include <gtest/gtest.h>
#include <cstring>

#include "tests/standins/HostedControl.h"
#include "tests/support/TempFolder.h"
#include "neighbours/DwgViewerIds.h"

namespace {

template <class Number>
std::string Bytes(const Number& value) {
    return std::string(reinterpret_cast<const char*>(&value), sizeof(value));
}

// A red picture of 2 x 1 pixels.
const std::string kRedBitmap =
    Bytes(BITMAPINFOHEADER{sizeof(BITMAPINFOHEADER), 2, 1, 1, 24, BI_RGB, 0, 0, 0, 0, 0}) +
    std::string("\0\0\xff\0\0\xff\0\0", 8);
// A blue picture of 1 x 1 pixel.
const std::string kBluePng("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\2\0\0\0\x90wS\xde"
                           "\0\0\0\fIDATx\x9c"
                           "c``\xf8\x0f\0\1\3\1\0\x08\x89\xc2\xec\0\0\0\0IEND\xae"
                           "B`\x82",
                           69);

constexpr size_t sectionPlace = 0x40;
constexpr size_t lengthPlace = sectionPlace + 16;
constexpr size_t countPlace = lengthPlace + 4;
constexpr size_t entryPlace = countPlace + 1;
constexpr size_t entrySize = 9;

// A drawing whose preview section holds these images, by their codes.
std::string Drawing(const std::vector<std::pair<char, std::string>>& images) {
    std::string entries, data;
    for (const auto& [code, image] : images) {
        entries += code + Bytes(DWORD(entryPlace + images.size() * entrySize + data.size())) +
                   Bytes(DWORD(image.size()));
        data += image;
    }
    std::string bytes = "AC1018";
    bytes.resize(0x0D);
    bytes += Bytes(DWORD(sectionPlace));
    bytes.resize(sectionPlace);
    bytes.append("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);
    return bytes + Bytes(DWORD(1 + entries.size() + data.size())) + char(images.size()) + entries + data;
}

class Viewer : public testing::Test {
protected:
    long Open(const std::wstring& path) {
        _variant_t result;
        EXPECT_EQ(S_OK, tests::Invoke(m_host.m_control, varnoke::kDwgViewerOpen, DISPATCH_METHOD,
                                      {path.c_str()}, &result));
        return result;
    }
    long OpenBytes(const std::string& bytes) {
        tests::WriteBytes(m_folder / L"图.dwg", bytes);
        return Open(m_folder / L"图.dwg");
    }
    COLORREF PixelAt(int x, int y) const {
        UpdateWindow(m_host.Window());
        const HDC dc = GetDC(m_host.Window());
        const COLORREF color = GetPixel(dc, x, y);
        ReleaseDC(m_host.Window(), dc);
        return color;
    }

    tests::TempFolder m_folder;
    tests::HostedControl m_host{varnoke::kDwgViewerClass};
};

constexpr COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255), white = RGB(255, 255, 255);

TEST_F(Viewer, Open_ShowsPictureInItsProportionsAndPrefersPng) {
    ASSERT_EQ(1, OpenBytes(Drawing({{2, kRedBitmap}, {6, kBluePng}})));
    EXPECT_EQ(blue, PixelAt(300, 150));
    ASSERT_EQ(1, OpenBytes(Drawing({{2, kRedBitmap}})));
    EXPECT_EQ(red, PixelAt(300, 150));
    MoveWindow(m_host.m_container, 0, 0, 300, 300, TRUE);
    tests::Pump();
    EXPECT_TRUE(PixelAt(150, 90) == red && PixelAt(150, 60) == white && PixelAt(150, 240) == white);
}

TEST_F(Viewer, Open_DamagedOrNoDrawingGivesEmptyFrame) {
    const std::string good = Drawing({{2, kRedBitmap}});
    const auto with = [&good](size_t place, const std::string& bytes) {
        return std::string(good).replace(place, bytes.size(), bytes);
    };
    const size_t bitmap = entryPlace + entrySize;
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"empty", ""},
        {"version only", "AC1018"},
        {"cut in the section", good.substr(0, countPlace)},
        {"cut in the entry", good.substr(0, entryPlace + 4)},
        {"cut in the picture", good.substr(0, good.size() - 9)},
        {"no drawing", with(2, "x")},
        {"section beyond the end", with(0x0D, Bytes(0x7fffffff))},
        {"section at the last byte", with(0x0D, Bytes(DWORD(good.size() - 1)))},
        {"section offset wraps", with(0x0D, Bytes(0xfffffff0))},
        {"other sentinel", with(sectionPlace, "\x20")},
        {"more images than bytes", with(countPlace, "\xff")},
        {"length too large", with(lengthPlace, Bytes(0xffffffff))},
        {"length too small", with(lengthPlace, Bytes(3))},
        {"image beyond the end", with(entryPlace + 1, Bytes(0xfffffffe))},
        {"image too long", with(entryPlace + 5, Bytes(0xffffffff))},
        {"image without bytes", with(entryPlace + 5, Bytes(0))},
        {"metafile only", Drawing({{3, kRedBitmap}})},
        {"bitmap named PNG", Drawing({{6, kRedBitmap}})},
        {"PNG signature only", Drawing({{6, kBluePng.substr(0, 8)}})},
        {"cut PNG", Drawing({{6, kBluePng.substr(0, 40)}})},
        {"bitmap head too large", with(bitmap, Bytes(0x7fffffff))},
        {"bitmap too wide", with(bitmap + 4, Bytes(0x40000000))},
        {"bitmap with too many colours", with(bitmap + 32, Bytes(0xffffffff))},
    };
    for (const auto& [name, bytes] : cases) {
        ASSERT_EQ(1, OpenBytes(good));
        EXPECT_EQ(0, OpenBytes(bytes)) << name;
        EXPECT_EQ(white, PixelAt(300, 150)) << name;
    }
    EXPECT_EQ(0, Open(m_folder / L"missing.dwg"));
    EXPECT_EQ(0, Open(L""));
}

} // namespace
