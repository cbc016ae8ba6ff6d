#include "ui/SignDlg.h"

#include "varnoke/INIConfig.h"
#include "module/Guarded.h"
#include "config/DateStyle.h"
#include "ui/SignScope.h"

using namespace varnoke;

namespace {

const wchar_t* const kDateLocations[] = {L"左上", L"左中", L"左下", L"中上", L"中中",
                                         L"中下", L"右上", L"右中", L"右下"};

const wchar_t* const kFontSizes[] = {L"8",  L"9",  L"10", L"11", L"12", L"14", L"16", L"18",
                                     L"20", L"22", L"24", L"26", L"28", L"36", L"48", L"72"};
const long kDefaultFontSize = 8;

template <int count>
void Fill(CComboBox& combo, const wchar_t* const (&texts)[count]) {
    combo.ResetContent();
    for (const wchar_t* text : texts)
        combo.AddString(text);
    combo.SetCurSel(0);
}

// A text that is not in the list goes to its top.
void SelectOrInsert(CComboBox& combo, const CString& text) {
    int index = combo.FindStringExact(-1, text);
    if (index == CB_ERR) index = combo.InsertString(0, text);
    combo.SetCurSel(index);
}

} // namespace

void CSignDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_USER_NAME, m_editUserName);
    DDX_Control(exchange, IDC_ROLE, m_editRole);
    DDX_Control(exchange, IDC_SEAL_NAME, m_editSealName);
    DDX_Control(exchange, IDC_PREVIEW, m_preview);
    DDX_Control(exchange, IDC_SIGN_TIME, m_pickerSignTime);
    DDX_Control(exchange, IDC_DATE_FORMAT, m_comboDateFormat);
    DDX_Control(exchange, IDC_DATE_LOCATION, m_comboDateLocation);
    DDX_Control(exchange, IDC_FONT_SIZE, m_comboFontSize);
    DDX_Control(exchange, IDC_TEXT_COLOR, m_comboTextColor);
    DDX_Control(exchange, IDC_SCOPE_CURRENT, m_boxCurrent);
    DDX_Control(exchange, IDC_SCOPE_OPENED, m_boxOpened);
    DDX_Control(exchange, IDC_SCOPE_ALL, m_boxAll);
}

BOOL CSignDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Guarded([this] { FillControls(); });
    return TRUE;
}

void CSignDlg::FillControls() {
    m_editUserName.SetWindowText(m_userNameIn);
    m_editRole.SetWindowText(m_roleIn);
    if (m_sealNameIn.IsEmpty()) m_sealNameIn = m_userNameIn + L"_" + m_roleIn;
    m_editSealName.SetWindowText(m_sealNameIn);
    ShowPreview();
    FillDateFormats();
    FillDateLocations();
    FillFontSizes();
    m_comboTextColor.FillFromSettings(m_settings, this);
    InitScopeBoxes();
}

void CSignDlg::ShowPreview() {
    // Without a viewer, or with a drawing it cannot show, the preview stays empty; signing goes on.
    Guarded([this] { m_preview.OpenDrawing(m_sealDrawingPath); });
}

void CSignDlg::FillDateFormats() {
    Fill(m_comboDateFormat, kDateStyles);
    if (!m_settings) return;
    const CString style = m_settings->GetDateStyle();
    SelectOrInsert(m_comboDateFormat, style.IsEmpty() ? CString(kDefaultDateStyle) : style);
}

void CSignDlg::FillDateLocations() {
    Fill(m_comboDateLocation, kDateLocations);
    CString location;
    if (m_settings) location = m_settings->GetDateLocation();
    if (location.IsEmpty()) location = kDateLocations[0];
    const int index = m_comboDateLocation.FindStringExact(-1, location);
    if (index != CB_ERR)
        m_comboDateLocation.SetCurSel(index);
    else
        m_comboDateFormat.SetCurSel(0); // the formats, not the locations: kept as users know it
}

void CSignDlg::FillFontSizes() {
    Fill(m_comboFontSize, kFontSizes);
    long size = m_settings ? m_settings->GetDateFontSize() : kDefaultFontSize;
    if (size < 1) size = kDefaultFontSize;
    CString text;
    text.Format(L"%ld", size);
    SelectOrInsert(m_comboFontSize, text);
}

void CSignDlg::InitScopeBoxes() {
    CButton* const boxes[] = {&m_boxCurrent, &m_boxOpened, &m_boxAll};
    for (CButton* box : boxes) {
        box->EnableWindow(FALSE);
        box->SetCheck(BST_CHECKED);
    }
    if (m_scopeSelectable == 0) return;
    int scope = kScopeCurrent;
    if (m_settings) scope = m_settings->GetScope();
    ShowScope(scope);
}
