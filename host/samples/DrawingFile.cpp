// Sample drawing files.
#include <afxwin.h>

#include <algorithm>

#include "host/samples/DrawingFile.h"

namespace samples {

namespace {

constexpr size_t kSeekerOffset = 0x0D;
constexpr size_t kCodePageOffset = 0x13;
constexpr unsigned char kCodePage936 = 39;
constexpr size_t kHeaderSize = 0x80;
constexpr size_t kPreviewHeaderSize = 80;

constexpr unsigned char kPreviewStart[16] = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                             0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};

/// What the preview section holds; each image has an entry of nine bytes.
enum ImageCode : unsigned char { imageHeader = 1, imageBitmap = 2 };
constexpr size_t kImageEntrySize = 9;
constexpr unsigned char kImageCount = 2;

void AppendImageEntry(Bytes& bytes, ImageCode code, size_t start, size_t size) {
    bytes.push_back(code);
    AppendLong(bytes, static_cast<unsigned long>(start));
    AppendLong(bytes, static_cast<unsigned long>(size));
}

} // namespace

Bytes MakeDrawing(const char* version, const Bytes& dib) {
    Bytes bytes(kHeaderSize);
    std::copy(version, version + 6, bytes.begin());
    bytes[kSeekerOffset] = kHeaderSize;
    bytes[kCodePageOffset] = kCodePage936;

    constexpr size_t entries = 1 + kImageCount * kImageEntrySize;
    const size_t header = kHeaderSize + sizeof kPreviewStart + 4 + entries;
    Append(bytes, kPreviewStart, sizeof kPreviewStart);
    AppendLong(bytes, static_cast<unsigned long>(entries + kPreviewHeaderSize + dib.size()));
    bytes.push_back(kImageCount);
    AppendImageEntry(bytes, imageHeader, header, kPreviewHeaderSize);
    AppendImageEntry(bytes, imageBitmap, header + kPreviewHeaderSize, dib.size());
    bytes.resize(bytes.size() + kPreviewHeaderSize);
    Append(bytes, dib.data(), dib.size());
    for (unsigned char c : kPreviewStart) {
        bytes.push_back(static_cast<unsigned char>(~c));
    }
    return bytes;
}

} // namespace samples
