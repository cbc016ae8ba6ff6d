// The standard controls: messages to the control's window.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CStatic::~CStatic() {
    DestroyWindow();
}

CButton::~CButton() {
    DestroyWindow();
}

CEdit::~CEdit() {
    DestroyWindow();
}

CComboBox::~CComboBox() {
    DestroyWindow();
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}
