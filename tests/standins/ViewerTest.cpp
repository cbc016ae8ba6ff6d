// The DWG viewer control: pictures of good drawings, empty frame for damaged ones.
#include <windows.h>
#include <gtest/gtest.h>
#include <cstring>

#include "tests/standins/HostedControl.h"
#include "tests/support/TempFolder.h"
#include "ui/DwgViewerIds.h"

namespace {

template <class Number>
void Append(std::string& bytes, Number value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof(value));
}

// A red picture of 2 x 1 pixels.
std::string RedBitmap() {
    BITMAPINFOHEADER head = {};
    head.biSize = sizeof(head);
    head.biWidth = 2;
    head.biHeight = 1;
    head.biPlanes = 1;
    head.biBitCount = 24;
    std::string bytes;
    Append(bytes, head);
    bytes.append("\0\0\xff\0\0\xff\0\0", 8);
    return bytes;
}

// A blue picture of 1 x 1 pixel.
std::string BluePng() {
    static const unsigned char bytes[] = {
        0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48,
        0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x02, 0x00, 0x00,
        0x00, 0x90, 0x77, 0x53, 0xde, 0x00, 0x00, 0x00, 0x0c, 0x49, 0x44, 0x41, 0x54, 0x78,
        0x9c, 0x63, 0x60, 0x60, 0xf8, 0x0f, 0x00, 0x01, 0x03, 0x01, 0x00, 0x08, 0x89, 0xc2,
        0xec, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};
    return std::string(reinterpret_cast<const char*>(bytes), sizeof(bytes));
}

constexpr size_t sectionPlace = 0x40;
constexpr size_t lengthPlace = sectionPlace + 16;
constexpr size_t countPlace = lengthPlace + 4;
constexpr size_t entryPlace = countPlace + 1;

// A drawing whose preview section holds one image.
std::string Drawing(char code, const std::string& image) {
    std::string bytes("AC1018", 6);
    bytes.resize(0x0D);
    Append(bytes, static_cast<DWORD>(sectionPlace));
    bytes.resize(sectionPlace);
    bytes.append("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B", 16);
    Append(bytes, static_cast<DWORD>(1 + 9 + image.size()));
    bytes += '\1';
    bytes += code;
    Append(bytes, static_cast<DWORD>(entryPlace + 9));
    Append(bytes, static_cast<DWORD>(image.size()));
    return bytes + image;
}

std::string WithNumber(std::string bytes, size_t place, DWORD value) {
    std::memcpy(&bytes[place], &value, sizeof(value));
    return bytes;
}

class Viewer : public testing::Test {
protected:
    long Open(const std::wstring& path) {
        _variant_t result;
        EXPECT_EQ(S_OK, m_host.Invoke(varnoke::kDwgViewerOpen, DISPATCH_METHOD, {path.c_str()}, &result));
        EXPECT_EQ(VT_I4, result.vt);
        return result.lVal;
    }
    long OpenBytes(const std::string& bytes) {
        tests::WriteBytes(m_folder / L"图.dwg", bytes);
        return Open(m_folder / L"图.dwg");
    }
    COLORREF Centre() const { return m_host.PixelAt(300, 150); }

    tests::TempFolder m_folder;
    tests::HostedControl m_host{varnoke::kDwgViewerClass};
};

constexpr COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255), white = RGB(255, 255, 255);

TEST_F(Viewer, Open_ShowsPictureInItsProportions) {
    ASSERT_EQ(1, OpenBytes(Drawing(2, RedBitmap())));
    EXPECT_EQ(red, Centre());
    MoveWindow(m_host.Container(), 0, 0, 300, 300, TRUE);
    tests::HostedControl::Pump();
    EXPECT_EQ(red, m_host.PixelAt(150, 150));
    EXPECT_EQ(red, m_host.PixelAt(150, 90));
    EXPECT_EQ(white, m_host.PixelAt(150, 60));
    EXPECT_EQ(white, m_host.PixelAt(150, 240));
}

TEST_F(Viewer, Open_PrefersPng) {
    ASSERT_EQ(1, OpenBytes(Drawing(6, BluePng())));
    EXPECT_EQ(blue, Centre());
    // The bitmap first, then the PNG behind it.
    const std::string bitmap = RedBitmap(), png = BluePng();
    std::string both = Drawing(2, bitmap);
    both.resize(entryPlace + 9);
    both[countPlace] = 2;
    both += '\6';
    Append(both, static_cast<DWORD>(entryPlace + 18 + bitmap.size()));
    Append(both, static_cast<DWORD>(png.size()));
    both = WithNumber(both + bitmap + png, entryPlace + 1, entryPlace + 18);
    both = WithNumber(both, lengthPlace, static_cast<DWORD>(19 + bitmap.size() + png.size()));
    ASSERT_EQ(1, OpenBytes(both));
    EXPECT_EQ(blue, Centre());
}

TEST_F(Viewer, Open_DamagedOrNoDrawingGivesEmptyFrame) {
    const std::string good = Drawing(2, RedBitmap());
    std::string otherSentinel = good, manyImages = good, notDrawing = good;
    otherSentinel[sectionPlace] = '\x20';
    manyImages[countPlace] = '\xff';
    notDrawing[2] = 'x';
    const size_t dib = entryPlace + 9;
    const std::vector<std::pair<const char*, std::string>> cases = {
        {"empty", ""},
        {"version only", "AC1018"},
        {"cut in the section", good.substr(0, countPlace)},
        {"cut in the entry", good.substr(0, entryPlace + 4)},
        {"cut in the picture", good.substr(0, good.size() - 9)},
        {"no drawing", notDrawing},
        {"section beyond the end", WithNumber(good, 0x0D, 0x7fffffff)},
        {"section at the last byte", WithNumber(good, 0x0D, static_cast<DWORD>(good.size() - 1))},
        {"section offset wraps", WithNumber(good, 0x0D, 0xfffffff0)},
        {"other sentinel", otherSentinel},
        {"more images than bytes", manyImages},
        {"length too large", WithNumber(good, lengthPlace, 0xffffffff)},
        {"length too small", WithNumber(good, lengthPlace, 3)},
        {"image beyond the end", WithNumber(good, entryPlace + 1, 0xfffffffe)},
        {"image too long", WithNumber(good, entryPlace + 5, 0xffffffff)},
        {"image without bytes", WithNumber(good, entryPlace + 5, 0)},
        {"metafile only", Drawing(3, RedBitmap())},
        {"bitmap named PNG", Drawing(6, "\x89PNG\r\n\x1a\n")},
        {"cut PNG", Drawing(6, BluePng().substr(0, 40))},
        {"bitmap head too large", WithNumber(good, dib, 0x7fffffff)},
        {"bitmap too wide", WithNumber(good, dib + 4, 0x40000000)},
        {"bitmap with too many colours", WithNumber(good, dib + 32, 0xffffffff)},
    };
    for (const auto& [name, bytes] : cases) {
        ASSERT_EQ(1, OpenBytes(good));
        EXPECT_EQ(0, OpenBytes(bytes)) << name;
        EXPECT_EQ(white, Centre()) << name;
    }
    EXPECT_EQ(0, Open(m_folder / L"missing.dwg"));
    EXPECT_EQ(0, Open(L""));
}

} // namespace
