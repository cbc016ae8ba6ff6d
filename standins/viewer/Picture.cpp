// A decoded preview picture.
#include "standins/viewer/Picture.h"

#include <wincodec.h>
#include <comdef.h>
#include <algorithm>
#include <cstring>

namespace viewer {

template <class Interface, const IID* id>
using Pointer = _com_ptr_t<_com_IIID<Interface, id>>;
using FactoryPtr = Pointer<IWICImagingFactory, &IID_IWICImagingFactory>;
using StreamPtr = Pointer<IWICStream, &IID_IWICStream>;
using DecoderPtr = Pointer<IWICBitmapDecoder, &IID_IWICBitmapDecoder>;
using FramePtr = Pointer<IWICBitmapFrameDecode, &IID_IWICBitmapFrameDecode>;
using ConverterPtr = Pointer<IWICFormatConverter, &IID_IWICFormatConverter>;

// Larger previews are taken for damaged ones.
constexpr UINT kLongestSide = 8192;

// The DIB as the contents of a bitmap file; empty when its head is damaged.
static std::vector<BYTE> BitmapFile(const std::vector<BYTE>& dib) {
    BITMAPINFOHEADER head = {};
    if (dib.size() < sizeof(head)) return {};
    std::memcpy(&head, dib.data(), sizeof(head));
    if (head.biSize < sizeof(head) || head.biSize > dib.size()) return {};
    ULONGLONG colors = head.biClrUsed;
    if (colors == 0 && head.biBitCount <= 8) colors = 1ULL << head.biBitCount;
    const DWORD masks =
        head.biCompression == BI_BITFIELDS && head.biSize == sizeof(head) ? 3 * sizeof(DWORD) : 0;
    const ULONGLONG pixels = head.biSize + masks + colors * sizeof(RGBQUAD);
    if (pixels >= dib.size()) return {};

    BITMAPFILEHEADER fileHead = {};
    fileHead.bfType = 0x4D42; // "BM"
    fileHead.bfSize = static_cast<DWORD>(sizeof(fileHead) + dib.size());
    fileHead.bfOffBits = static_cast<DWORD>(sizeof(fileHead) + pixels);
    std::vector<BYTE> file(sizeof(fileHead) + dib.size());
    std::memcpy(file.data(), &fileHead, sizeof(fileHead));
    std::copy(dib.begin(), dib.end(), file.begin() + sizeof(fileHead));
    return file;
}

// The first picture of an image file, converted to 32 bits a pixel with premultiplied alpha; null on failure.
// The file's bytes must outlive the result.
static ConverterPtr Decode(std::vector<BYTE>& file) {
    FactoryPtr factory;
    StreamPtr stream;
    DecoderPtr decoder;
    FramePtr frame;
    ConverterPtr converter;
    const bool ok =
        SUCCEEDED(factory.CreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER)) &&
        SUCCEEDED(factory->CreateStream(&stream)) &&
        SUCCEEDED(stream->InitializeFromMemory(file.data(), static_cast<DWORD>(file.size()))) &&
        SUCCEEDED(
            factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand, &decoder)) &&
        SUCCEEDED(decoder->GetFrame(0, &frame)) && SUCCEEDED(factory->CreateFormatConverter(&converter)) &&
        SUCCEEDED(converter->Initialize(frame, GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                        nullptr, 0.0, WICBitmapPaletteTypeCustom));
    return ok ? converter : ConverterPtr();
}

static void BlendOverWhite(BYTE* pixels, size_t count) {
    for (BYTE* pixel = pixels; pixel != pixels + 4 * count; pixel += 4) {
        const int white = 255 - pixel[3];
        for (int i = 0; i < 3; ++i)
            pixel[i] = static_cast<BYTE>(std::min(255, pixel[i] + white));
    }
}

bool Picture::Load(const Preview& preview) {
    Clear();
    std::vector<BYTE> file = preview.kind == PreviewKind::Bitmap ? BitmapFile(preview.data) : preview.data;
    if (file.empty()) return false;
    const ConverterPtr source = Decode(file);
    UINT width = 0, height = 0;
    if (!source || FAILED(source->GetSize(&width, &height))) return false;
    if (width == 0 || height == 0 || width > kLongestSide || height > kLongestSide) return false;

    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = static_cast<LONG>(width);
    info.bmiHeader.biHeight = -static_cast<LONG>(height); // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* pixels = nullptr;
    base::GdiObject<HBITMAP> bitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!bitmap) return false;
    if (FAILED(source->CopyPixels(nullptr, width * 4, width * height * 4, static_cast<BYTE*>(pixels))))
        return false;
    BlendOverWhite(static_cast<BYTE*>(pixels), static_cast<size_t>(width) * height);
    m_bitmap = std::move(bitmap);
    m_width = static_cast<int>(width);
    m_height = static_cast<int>(height);
    return true;
}

void Picture::Clear() {
    m_bitmap.reset();
    m_width = m_height = 0;
}

void Picture::Draw(HDC dc, const RECT& bounds) const {
    ::FillRect(dc, &bounds, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    const int spaceWidth = bounds.right - bounds.left, spaceHeight = bounds.bottom - bounds.top;
    if (IsEmpty() || spaceWidth <= 0 || spaceHeight <= 0) return;
    const double scale =
        std::min(static_cast<double>(spaceWidth) / m_width, static_cast<double>(spaceHeight) / m_height);
    const int width = std::max(1, static_cast<int>(m_width * scale));
    const int height = std::max(1, static_cast<int>(m_height * scale));

    const base::MemoryDc memory(::CreateCompatibleDC(dc));
    if (!memory) return;
    const HGDIOBJ previous = ::SelectObject(memory.get(), m_bitmap.get());
    const int previousMode = ::SetStretchBltMode(dc, HALFTONE);
    ::SetBrushOrgEx(dc, 0, 0, nullptr);
    ::StretchBlt(dc, bounds.left + (spaceWidth - width) / 2, bounds.top + (spaceHeight - height) / 2, width,
                 height, memory.get(), 0, 0, m_width, m_height, SRCCOPY);
    ::SetStretchBltMode(dc, previousMode);
    ::SelectObject(memory.get(), previous);
}

} // namespace viewer
