// CSize, CPoint and CRect over the system's SIZE, POINT and RECT.
#pragma once

#include <windows.h>

class CSize : public tagSIZE {
public:
    CSize() noexcept : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return !(*this == size); }
};

class CPoint : public tagPOINT {
public:
    CPoint() noexcept : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}

    void Offset(int xOffset, int yOffset) noexcept {
        x += xOffset;
        y += yOffset;
    }
    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return !(*this == point); }
};

class CRect : public tagRECT {
public:
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept
        : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint TopLeft() const noexcept { return CPoint(left, top); }
    CPoint BottomRight() const noexcept { return CPoint(right, bottom); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }
    void SetRect(int x1, int y1, int x2, int y2) noexcept { ::SetRect(this, x1, y1, x2, y2); }
    void SetRectEmpty() noexcept { ::SetRectEmpty(this); }
    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }
    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }
    BOOL operator==(const RECT& rect) const noexcept { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !::EqualRect(this, &rect); }
};
