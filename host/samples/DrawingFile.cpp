// Sample drawing files.
#include <algorithm>

#include "host/samples/DrawingFile.h"

namespace samples {

namespace {

constexpr size_t kSeekerOffset = 0x0D;
constexpr size_t kCodePageOffset = 0x13;
constexpr char kCodePage936 = 39;
constexpr size_t kHeaderSize = 0x80;
constexpr size_t kPreviewHeaderSize = 80;

constexpr unsigned char kPreviewStart[16] = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                             0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};

/// What the preview section holds; each image has an entry of nine bytes.
enum ImageCode : char { kImageHeader = 1, kImageBitmap = 2 };
constexpr size_t kImageEntrySize = 9;
constexpr char kImageCount = 2;

/// Appends a number, least significant byte first.
void AppendLong(std::string& bytes, size_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<char>(value >> shift));
    }
}

void AppendImageEntry(std::string& bytes, ImageCode code, size_t start, size_t size) {
    bytes.push_back(code);
    AppendLong(bytes, start);
    AppendLong(bytes, size);
}

} // namespace

std::string MakeDrawing(const char* version, const std::string& dib) {
    std::string bytes(kHeaderSize, '\0');
    std::copy(version, version + 6, bytes.begin());
    bytes[kSeekerOffset] = kHeaderSize;
    bytes[kCodePageOffset] = kCodePage936;

    constexpr size_t kEntriesSize = 1 + kImageCount * kImageEntrySize;
    const size_t header = kHeaderSize + sizeof kPreviewStart + 4 + kEntriesSize;
    bytes.append(reinterpret_cast<const char*>(kPreviewStart), sizeof kPreviewStart);
    AppendLong(bytes, kEntriesSize + kPreviewHeaderSize + dib.size());
    bytes.push_back(kImageCount);
    AppendImageEntry(bytes, kImageHeader, header, kPreviewHeaderSize);
    AppendImageEntry(bytes, kImageBitmap, header + kPreviewHeaderSize, dib.size());
    bytes.resize(bytes.size() + kPreviewHeaderSize);
    bytes += dib;
    for (unsigned char c : kPreviewStart) {
        bytes.push_back(static_cast<char>(~c));
    }
    return bytes;
}

} // namespace samples
