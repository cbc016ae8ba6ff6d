// A decoded preview picture.
#pragma once

#include "base/Owned.h"
#include "standins/viewer/DwgPreview.h"

namespace viewer {

// Pixels over white; empty when nothing is shown.
class Picture {
public:
    // Replaces the picture. False, and an empty picture, when the preview can't be decoded.
    bool Load(const Preview& preview);
    void Clear();
    bool IsEmpty() const { return !m_bitmap; }

    // White bounds, and the picture in their middle, as large as its proportions allow.
    void Draw(HDC dc, const RECT& bounds) const;

private:
    base::GdiObject<HBITMAP> m_bitmap;
    int m_width = 0;
    int m_height = 0;
};

} // namespace viewer
