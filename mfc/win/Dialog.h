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

    // Modeless dialogs are not used; the functions hold their places.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr) {
        return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
    }
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    // Runs the dialog with its owner disabled. Gives the result of EndDialog; -1 when the dialog could
    // not be made. EndDialog within OnInitDialog ends it before it is ever shown.
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);
    virtual BOOL OnInitDialog(); // TRUE puts the focus on the first control
    virtual void OnSetFont(CFont* pFont);

    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    virtual BOOL PreTranslateMessage(MSG* pMsg) override;
    virtual BOOL CheckAutoCenter() override;

protected:
    virtual BOOL SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo) override;
    virtual _AFX_OCC_DIALOG_INFO* GetOccDialogInfo() override;
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog();

    UINT m_nIDHelp;
    LPCTSTR m_lpszTemplateName;
    HGLOBAL m_hDialogTemplate;
    LPCDLGTEMPLATE m_lpDialogTemplate;
    void* m_lpDialogInit;
    CWnd* m_pParentWnd; // borrowed
    HWND m_hWndTop;
    BOOL m_bClosedByEndDialog;
    _AFX_OCC_DIALOG_INFO* m_pOccDialogInfo; // borrowed; what the controls are made from while DoModal runs

    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

private:
    void RunFromTemplate(const CDialogTemplate& dialogTemplate, HWND hWndOwner);
    void CreateOleControls();
    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};
