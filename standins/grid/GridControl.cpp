// The grid control's window and what QORGrid.dll serves.
#include "standins/grid/GridControl.h"

#include "standins/common/ClassFactory.h"
#include "standins/common/ComServer.h"
#include "neighbours/QORGridIds.h"

namespace grid {

const CLSID& GridControl::ClassId() const {
    return varnoke::kQORGridClass;
}

LRESULT GridControl::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_CREATE:
        m_view.Create(window);
        return m_view.List() ? 0 : -1;
    case WM_DESTROY:
        m_view.Forget();
        return 0;
    case WM_SIZE:
        m_view.Resize(LOWORD(lParam), HIWORD(lParam));
        return 0;
    case WM_SETFOCUS:
        ::SetFocus(m_view.List());
        return 0;
    case WM_NOTIFY:
        return m_view.OnNotify(reinterpret_cast<NMHDR*>(lParam));
    default:
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace grid

std::vector<standins::ServedClass> standins::ServedClasses() {
    return {
        {varnoke::kQORGridClass, L"QORGrid.Grid", L"Grid control", true, &MakeFactory<grid::GridControl>}};
}
