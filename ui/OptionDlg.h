#pragma once

#include <afxwin.h>
#include "ui/ColorComboBox.h"
#include "ui/resource.h"

class CINIConfig;

/// Its only setting is the colour of the date text.
class COptionDlg : public CDialog {
public:
    enum { IDD = IDD_OPTION };

    explicit COptionDlg(CWnd* parent = nullptr);

    /// Where the colour is read from and written to; borrowed, must outlive the dialog. Null is refused.
    int SetSettings(CINIConfig* settings);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg LRESULT OnActivated(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    CColorComboBox m_comboTextColor;
    CINIConfig* m_settings = nullptr; // weak
};
