// The system's colour picker.
#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CColorDialog, CDialog)

namespace {

// The user's own colours last as long as the module.
COLORREF g_customColors[16] = {
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255)};

} // namespace

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CDialog(0u, pParentWnd), m_cc{} {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = g_customColors;
    m_cc.Flags = dwFlags | (clrInit != 0 ? CC_RGBINIT : 0);
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = FindOwner(m_pParentWnd->GetSafeHwnd());
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

COLORREF CColorDialog::GetColor() const {
    return m_cc.rgbResult;
}
