// Pictures of windows, encoded by the Windows Imaging Component.
#include <afxwin.h>
#include <comdef.h>
#include <wincodec.h>

#include "host/PngFile.h"
#include "base/Owned.h"

namespace host {

namespace {

_COM_SMARTPTR_TYPEDEF(IWICImagingFactory, __uuidof(IWICImagingFactory));
_COM_SMARTPTR_TYPEDEF(IWICBitmapEncoder, __uuidof(IWICBitmapEncoder));
_COM_SMARTPTR_TYPEDEF(IWICBitmapFrameEncode, __uuidof(IWICBitmapFrameEncode));
_COM_SMARTPTR_TYPEDEF(IWICBitmap, __uuidof(IWICBitmap));
_COM_SMARTPTR_TYPEDEF(IWICStream, __uuidof(IWICStream));

using BitmapHandle = base::GdiObject<HBITMAP>;

/// Empty when the screen can't be read.
BitmapHandle CopyOfScreen(const CRect& area) {
    CClientDC screen(nullptr);
    CDC memory;
    memory.Attach(::CreateCompatibleDC(screen));
    BitmapHandle bitmap(::CreateCompatibleBitmap(screen, area.Width(), area.Height()));
    const HGDIOBJ before = ::SelectObject(memory, bitmap.get());
    const BOOL copied = ::BitBlt(memory, 0, 0, area.Width(), area.Height(), screen, area.left, area.top,
                                 SRCCOPY | CAPTUREBLT);
    ::SelectObject(memory, before);
    if (!copied) bitmap.reset();
    return bitmap;
}

void Check(HRESULT result) {
    if (FAILED(result)) _com_raise_error(result);
}

void WritePng(HBITMAP bitmap, const CString& path) {
    IWICImagingFactoryPtr factory;
    Check(factory.CreateInstance(CLSID_WICImagingFactory));
    IWICBitmapPtr picture;
    Check(factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, &picture));
    UINT width = 0;
    UINT height = 0;
    Check(picture->GetSize(&width, &height));

    IWICStreamPtr stream;
    Check(factory->CreateStream(&stream));
    Check(stream->InitializeFromFilename(path, GENERIC_WRITE));
    IWICBitmapEncoderPtr encoder;
    Check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder));
    Check(encoder->Initialize(stream, WICBitmapEncoderNoCache));
    IWICBitmapFrameEncodePtr frame;
    Check(encoder->CreateNewFrame(&frame, nullptr));
    Check(frame->Initialize(nullptr));
    Check(frame->SetSize(width, height));
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    Check(frame->SetPixelFormat(&format));
    Check(frame->WriteSource(picture, nullptr));
    Check(frame->Commit());
    Check(encoder->Commit());
}

} // namespace

bool SavePicture(HWND window, const CString& path) {
    CRect area;
    if (!::GetWindowRect(window, &area) || area.IsRectEmpty()) return false;
    try {
        const BitmapHandle bitmap = CopyOfScreen(area);
        if (!bitmap) return false;
        WritePng(bitmap.get(), path);
        return true;
    } catch (const _com_error&) {
        ::DeleteFileW(path);
    } catch (CException* exception) {
        exception->Delete();
    }
    return false;
}

} // namespace host
