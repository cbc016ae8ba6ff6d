// CDialog: dialogs from a template, and the exchange of data between a dialog and its controls.
#pragma once

#include "win/Wnd.h"

class CDialogTemplate;

// One run of a dialog's DoDataExchange.
class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate; // TRUE takes data from the controls, FALSE puts it into them
    CWnd* m_pDlgWnd;         // borrowed

    // The control's window; throws CNotSupportedException when the dialog has no such control.
    HWND PrepareCtrl(int nIDC);
};

// Attaches and subclasses the control the first time.
void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

class CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual ~CDialog();

    // Runs the dialog with its owner disabled. Gives the result of EndDialog; -1 when the dialog could
    // not be made. EndDialog within OnInitDialog ends it before it is ever shown.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);
    virtual BOOL OnInitDialog(); // TRUE puts the focus on the first control

    virtual BOOL PreTranslateMessage(MSG* pMsg) override;
    virtual BOOL CheckAutoCenter() override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    static HWND FindOwner(HWND hWndParent);

    LPCTSTR m_lpszTemplateName;
    CWnd* m_pParentWnd; // borrowed

private:
    const CDialogTemplate* m_pTemplate; // borrowed; what the dialog is made from while DoModal runs

    void RunFromTemplate(HWND hWndOwner);
    void CreateOleControls();
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};

#ifdef VARNOKE_MSABI
static_assert(sizeof(CDialog) <= 0x130, "CDialog is not larger than MFC's");
#endif
