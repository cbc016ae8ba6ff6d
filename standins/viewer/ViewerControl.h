// The DWG viewer control: shows a drawing's preview picture.
#pragma once

#include "standins/common/OleControl.h"
#include "standins/viewer/Picture.h"

namespace viewer {

// Its one member is kDwgViewerOpen of ui/DwgViewerIds.h. A drawing that has no picture that can be shown, or
// is no drawing or missing, gives 0 and leaves an empty white frame.
class ViewerControl final : public standins::OleControl {
protected:
    const base::DispatchTable& Members() const override;
    const CLSID& ClassId() const override;
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawContent(HDC dc, const RECT& bounds) override;

private:
    HRESULT Open(base::Arguments& arguments, VARIANT& result);

    Picture m_picture;
};

} // namespace viewer
