// CPoint, CSize and CRect over the system's POINT, SIZE and RECT.
#pragma once

#include <windows.h>

class CPoint : public tagPOINT {
public:
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
};

class CSize : public tagSIZE {
public:
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    explicit CSize(LONG dwSize) noexcept
        : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}
};

class CRect : public tagRECT {
public:
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CPoint TopLeft() const noexcept { return CPoint(left, top); }
    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }
};
