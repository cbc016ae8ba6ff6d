// The DWG viewer control and what DwgViewer.dll serves.
#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "standins/common/OleControl.h"
#include "standins/viewer/Picture.h"
#include "neighbours/DwgViewerIds.h"

namespace viewer {

// Its one member is kDwgViewerOpen of neighbours/DwgViewerIds.h. A drawing that has no picture that can be
// shown, or is no drawing or missing, gives 0 and leaves an empty white frame.
class ViewerControl final : public standins::OleControl {
protected:
    const base::DispatchTable& Members() const override;
    const CLSID& ClassId() const override;
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void Draw(HDC dc, const RECT& bounds) const;
    HRESULT Open(base::Arguments& arguments, VARIANT& result);

    Picture m_picture;
};

const CLSID& ViewerControl::ClassId() const {
    return varnoke::kDwgViewerClass;
}

const base::DispatchTable& ViewerControl::Members() const {
    static const base::DispatchTable members = {
        {varnoke::kDwgViewerOpen, L"Open", DISPATCH_METHOD, "S",
         &base::Forward<ViewerControl, &ViewerControl::Open>},
    };
    return members;
}

HRESULT ViewerControl::Open(base::Arguments& arguments, VARIANT& result) {
    m_picture.Clear();
    const bool shown = m_picture.Load(ReadPreview(base::BstrText(arguments[0])));
    if (Window()) ::InvalidateRect(Window(), nullptr, TRUE);
    return base::GiveLong(result, shown ? 1 : 0);
}

LRESULT ViewerControl::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT paint = {};
        RECT client = {};
        ::GetClientRect(window, &client);
        Draw(::BeginPaint(window, &paint), client);
        ::EndPaint(window, &paint);
        return 0;
    }
    case WM_PRINTCLIENT: {
        RECT client = {};
        ::GetClientRect(window, &client);
        Draw(reinterpret_cast<HDC>(wParam), client);
        return 0;
    }
    default:
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

void ViewerControl::Draw(HDC dc, const RECT& bounds) const {
    RECT inside = bounds;
    ::FrameRect(dc, &bounds, ::GetSysColorBrush(COLOR_3DSHADOW));
    ::InflateRect(&inside, -1, -1);
    m_picture.Draw(dc, inside);
}

} // namespace viewer

std::vector<standins::ServedClass> standins::ServedClasses() {
    return {{varnoke::kDwgViewerClass, L"DwgViewer.Viewer", L"DWG viewer control", true,
             &MakeFactory<viewer::ViewerControl>}};
}
