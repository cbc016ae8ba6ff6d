// The colour is kept in the settings file only; nothing is written until OK.
#include "ui/OptionDlg.h"

#include "varnoke/INIConfig.h"
#include "module/Guarded.h"
#include "module/InfoMessage.h"
#include "module/ResourceText.h"
#include "ui/StoredColor.h"

BEGIN_MESSAGE_MAP(COptionDlg, CDialog)
    ON_BN_CLICKED(IDC_CONFIRM, &COptionDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &COptionDlg::OnCancel)
END_MESSAGE_MAP()

COptionDlg::COptionDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

int COptionDlg::SetSettings(CINIConfig* pSettings) {
    if (!pSettings) return 0;
    m_settings = pSettings;
    return 1;
}

void COptionDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TEXT_COLOR, m_comboTextColor);
}

BOOL COptionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    varnoke::Guarded([this] { m_comboTextColor.FillWithStored(varnoke::StoredTextColor(m_settings), this); });
    return TRUE;
}

void COptionDlg::OnOK() {
    varnoke::Guarded([this] {
        int color = 0;
        if (!m_comboTextColor.GetSelectedColor(&color)) {
            varnoke::ShowInfo(varnoke::ResourceText(IDS_BAD_TEXT_COLOR), this);
            return;
        }
        if (m_settings) m_settings->SetDateTextColor(color);
        EndDialog(IDOK);
    });
}
