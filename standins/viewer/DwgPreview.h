// The preview picture that a drawing file carries.
#pragma once

#include <windows.h>
#include <string>
#include <vector>

namespace viewer {

enum class PreviewKind { None, Bitmap, Png };

struct Preview {
    PreviewKind kind = PreviewKind::None;
    std::vector<BYTE> data; // Bitmap: a DIB without file header; Png: a whole PNG file
};

// A drawing starts with its version ("AC10" and two digits). At offset 0x0D stands the place of the preview
// section as a 32-bit little-endian number; there, a sentinel of 16 bytes, the section's length in bytes, the
// count of images (one byte), and per image a code (one byte: 1 header, 2 bitmap, 3 metafile, 6 PNG), its
// place in the file and its length. Gives the first PNG, else the first bitmap; none when there is neither or
// the file is not such a drawing.
Preview ReadPreview(const std::wstring& path);

} // namespace viewer
