// The system's colour picker.
#include <afxdlgs.h>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CCommonDialog, CDialog)
END_MESSAGE_MAP()

// The system's dialog ends itself.
void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}

namespace {

// The user's own colours last as long as the module.
COLORREF g_customColors[16] = {
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255),
    RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255), RGB(255, 255, 255)};

} // namespace

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc{} {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = g_customColors;
    m_cc.Flags = dwFlags | (clrInit != 0 ? CC_RGBINIT : 0);
}

INT_PTR CColorDialog::DoModal() {
    m_cc.hwndOwner = GetSafeOwner_(m_pParentWnd->GetSafeHwnd(), nullptr);
    return ::ChooseColor(&m_cc) ? IDOK : IDCANCEL;
}

BOOL CColorDialog::OnColorOK() {
    return FALSE;
}
