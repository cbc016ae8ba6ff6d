#include "ui/OptionDlg.h"

#include "varnoke/INIConfig.h"
#include "module/Guarded.h"
#include "ui/InfoMessage.h"
#include "module/ResourceText.h"

BEGIN_MESSAGE_MAP(COptionDlg, CDialog)
    ON_MESSAGE(WM_ACTIVATE, &COptionDlg::OnActivated)
    ON_BN_CLICKED(IDC_CONFIRM, &COptionDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &COptionDlg::OnCancel)
END_MESSAGE_MAP()

COptionDlg::COptionDlg(CWnd* parent) : CDialog(IDD, parent) {}

int COptionDlg::SetSettings(CINIConfig* settings) {
    if (!settings) return 0;
    m_settings = settings;
    return 1;
}

void COptionDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TEXT_COLOR, m_comboTextColor);
}

BOOL COptionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    varnoke::Guarded([this] { m_comboTextColor.FillFromSettings(m_settings, this); });
    return TRUE;
}

// The colours are not drawn while no window has the focus.
LRESULT COptionDlg::OnActivated(WPARAM, LPARAM) {
    if (m_comboTextColor.GetSafeHwnd()) m_comboTextColor.Invalidate();
    return Default();
}

void COptionDlg::OnOK() {
    varnoke::Guarded([this] {
        int color = 0;
        if (!m_comboTextColor.GetSelectedColor(&color)) {
            varnoke::ShowInfo(varnoke::ResourceText(IDS_BAD_TEXT_COLOR), this);
            return;
        }
        if (m_settings && !m_settings->SetDateTextColor(color))
            varnoke::ShowInfo(varnoke::ResourceText(IDS_NOT_STORED), this);
        EndDialog(IDOK);
    });
}
