// COptionDlg: the option dialog; its only setting is the colour of the date text.
#pragma once

#include <afxwin.h>
#include "ui/ColorComboBox.h"
#include "ui/resource.h"

class CINIConfig;

class COptionDlg : public CDialog {
public:
    enum { IDD = IDD_OPTION };

    explicit COptionDlg(CWnd* pParent = nullptr);

    /// Where the colour is read from and written to; borrowed, must outlive the dialog. Null is refused.
    int SetSettings(CINIConfig* pSettings);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    DECLARE_MESSAGE_MAP()

private:
    CColorComboBox m_comboTextColor;
    CINIConfig* m_settings = nullptr; // weak
};
