// The library's message box.
#include "module/InfoMessage.h"

namespace varnoke {

int ShowInfo(const CString& text, CWnd* parent) {
    if (text.IsEmpty()) return 0;
    const HWND owner = parent ? parent->GetSafeHwnd() : nullptr;
    ::MessageBoxW(owner, text, L"提示", MB_OK | MB_ICONINFORMATION);
    return 1;
}

} // namespace varnoke
