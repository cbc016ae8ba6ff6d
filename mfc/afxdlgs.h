// The system's common dialogs.
#pragma once

#include <afxwin.h>
#include <commdlg.h>

class CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd* pParentWnd) : CDialog(0u, pParentWnd) {}

protected:
    virtual void OnOK() override;
    virtual void OnCancel() override;

    DECLARE_MESSAGE_MAP()
};

class CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    virtual INT_PTR DoModal() override; // IDOK or IDCANCEL
    COLORREF GetColor() const { return m_cc.rgbResult; }

    CHOOSECOLOR m_cc;

protected:
    virtual BOOL OnColorOK(); // TRUE keeps the dialog open
};
