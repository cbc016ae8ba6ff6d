// The library's message box.
#include "ui/InfoMessage.h"

#include "module/ResourceText.h"
#include "ui/resource.h"

namespace varnoke {

int ShowInfo(const CString& text, CWnd* parent) {
    if (text.IsEmpty()) return 0;
    const HWND owner = parent ? parent->GetSafeHwnd() : nullptr;
    ::MessageBoxW(owner, text, ResourceText(IDS_INFO_CAPTION), MB_OK | MB_ICONINFORMATION);
    return 1;
}

} // namespace varnoke
