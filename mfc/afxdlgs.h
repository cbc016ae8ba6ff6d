// The system's common dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

class CColorDialog : public CDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    virtual INT_PTR DoModal() override; // IDOK or IDCANCEL
    COLORREF GetColor() const;

    CHOOSECOLOR m_cc;
};
