// Preview pictures, drawn with GDI into a device-independent bitmap.
#include <afxwin.h>

#include "host/samples/Picture.h"
#include "base/Owned.h"

namespace samples {

namespace {

constexpr int kWidth = 360;
constexpr int kHeight = 250;
constexpr COLORREF kPaper = RGB(250, 250, 245);
constexpr COLORREF kInk = RGB(20, 30, 60);
constexpr COLORREF kAxis = RGB(190, 60, 40);
constexpr COLORREF kSeal = RGB(200, 20, 30);

/// A memory context with a 24-bit bitmap of the preview's size selected into it.
class Canvas {
public:
    Canvas();
    ~Canvas();
    Canvas& operator=(Canvas&&) = delete;

    void Line(int x1, int y1, int x2, int y2, COLORREF color, int width = 1);
    void Frame(int left, int top, int right, int bottom, COLORREF color, int width = 1);
    void Circle(int x, int y, int radius, COLORREF color, int width = 1);
    void Label(const CString& text, RECT area, int height, COLORREF color, const wchar_t* face = L"");
    /// Bitmap header and pixels, as a bitmap file has them after its file header.
    std::string Dib() const;

private:
    template <class Draw>
    void WithPen(COLORREF color, int width, Draw draw);

    base::MemoryDc m_dc;
    HDC m_hDC;
    BITMAPINFOHEADER m_header = {};
    base::GdiObject<HBITMAP> m_bitmap;
    void* m_pixels = nullptr;
    HGDIOBJ m_before;
};

Canvas::Canvas() : m_dc(::CreateCompatibleDC(nullptr)), m_hDC(m_dc.get()) {
    m_header.biSize = sizeof m_header;
    m_header.biWidth = kWidth;
    m_header.biHeight = kHeight;
    m_header.biPlanes = 1;
    m_header.biBitCount = 24;
    m_header.biSizeImage = (kWidth * 3 + 3) / 4 * 4 * kHeight;
    m_bitmap.reset(::CreateDIBSection(m_hDC, reinterpret_cast<const BITMAPINFO*>(&m_header), DIB_RGB_COLORS,
                                      &m_pixels, nullptr, 0));
    m_before = ::SelectObject(m_hDC, m_bitmap.get());
    const base::GdiObject<HBRUSH> paper(::CreateSolidBrush(kPaper));
    const RECT all = {0, 0, kWidth, kHeight};
    ::FillRect(m_hDC, &all, paper.get());
    ::SelectObject(m_hDC, ::GetStockObject(NULL_BRUSH));
    ::SetBkMode(m_hDC, TRANSPARENT);
}

Canvas::~Canvas() {
    ::SelectObject(m_hDC, m_before);
}

template <class Draw>
void Canvas::WithPen(COLORREF color, int width, Draw draw) {
    const base::GdiObject<HPEN> pen(::CreatePen(PS_SOLID, width, color));
    const HGDIOBJ before = ::SelectObject(m_hDC, pen.get());
    draw();
    ::SelectObject(m_hDC, before);
}

void Canvas::Line(int x1, int y1, int x2, int y2, COLORREF color, int width) {
    WithPen(color, width, [&] {
        ::MoveToEx(m_hDC, x1, y1, nullptr);
        ::LineTo(m_hDC, x2, y2);
    });
}

void Canvas::Frame(int left, int top, int right, int bottom, COLORREF color, int width) {
    WithPen(color, width, [&] { ::Rectangle(m_hDC, left, top, right, bottom); });
}

void Canvas::Circle(int x, int y, int radius, COLORREF color, int width) {
    WithPen(color, width, [&] { ::Ellipse(m_hDC, x - radius, y - radius, x + radius, y + radius); });
}

void Canvas::Label(const CString& text, RECT area, int height, COLORREF color, const wchar_t* face) {
    // The character set makes the system choose a font with Chinese characters when the face is missing.
    const base::GdiObject<HFONT> font(::CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE,
                                                    GB2312_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                                    ANTIALIASED_QUALITY, DEFAULT_PITCH, face));
    const HGDIOBJ before = ::SelectObject(m_hDC, font.get());
    ::SetTextColor(m_hDC, color);
    ::DrawTextW(m_hDC, text, text.GetLength(), &area,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    ::SelectObject(m_hDC, before);
}

std::string Canvas::Dib() const {
    ::GdiFlush();
    std::string dib(reinterpret_cast<const char*>(&m_header), sizeof m_header);
    if (m_pixels) dib.append(static_cast<const char*>(m_pixels), m_header.biSizeImage);
    return dib;
}

void DrawTitleBlock(Canvas& canvas, const CString& name, const CString& number) {
    canvas.Frame(4, 4, kWidth - 4, kHeight - 4, kInk);
    canvas.Frame(14, 10, kWidth - 10, kHeight - 10, kInk, 2);
    canvas.Frame(170, 186, kWidth - 10, kHeight - 10, kInk);
    canvas.Line(170, 214, kWidth - 10, 214, kInk);
    canvas.Line(258, 214, 258, kHeight - 10, kInk);
    canvas.Label(name, {174, 188, kWidth - 14, 212}, 15, kInk);
    canvas.Label(number, {172, 216, 256, kHeight - 12}, 12, kInk);
    canvas.Label(L"1 : 2", {260, 216, kWidth - 12, kHeight - 12}, 12, kInk);
}

void DrawFlange(Canvas& canvas) {
    canvas.Line(40, 100, 200, 100, kAxis);
    canvas.Line(120, 20, 120, 180, kAxis);
    for (int radius : {70, 52, 24}) {
        canvas.Circle(120, 100, radius, kInk, radius == 52 ? 1 : 2);
    }
    for (int x : {-37, 37}) {
        canvas.Circle(120 + x, 100 - 37, 7, kInk);
        canvas.Circle(120 + x, 100 + 37, 7, kInk);
    }
    canvas.Frame(240, 40, 270, 160, kInk, 2);
    canvas.Line(230, 100, 290, 100, kAxis);
}

void DrawShaft(Canvas& canvas) {
    canvas.Line(24, 100, 336, 100, kAxis);
    int left = 34;
    for (int half : {20, 32, 46, 32, 18}) {
        canvas.Frame(left, 100 - half, left + 59, 100 + half, kInk, 2);
        left += 58;
    }
}

void DrawHousing(Canvas& canvas) {
    canvas.Frame(40, 40, 200, 160, kInk, 2);
    canvas.Frame(28, 160, 212, 172, kInk, 2);
    canvas.Circle(90, 100, 32, kInk, 2);
    canvas.Circle(152, 100, 22, kInk, 2);
    canvas.Line(30, 100, 210, 100, kAxis);
    canvas.Frame(240, 50, 320, 150, kInk, 2);
    canvas.Line(280, 40, 280, 160, kAxis);
}

} // namespace

std::string DrawSheet(const CString& name, const CString& number, int variant) {
    static constexpr void (*kParts[])(Canvas&) = {DrawFlange, DrawShaft, DrawHousing};
    Canvas canvas;
    DrawTitleBlock(canvas, name, number);
    kParts[variant % 3](canvas);
    return canvas.Dib();
}

std::string DrawSignature(const CString& person) {
    Canvas canvas;
    canvas.Frame(30, 40, kWidth - 30, kHeight - 40, kSeal, 4);
    canvas.Frame(38, 48, kWidth - 38, kHeight - 48, kSeal, 1);
    canvas.Label(person, {44, 54, kWidth - 44, kHeight - 54}, 84, kSeal, L"KaiTi");
    return canvas.Dib();
}

} // namespace samples
