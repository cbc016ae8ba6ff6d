// The sign dialog's inputs, results and confirmation; SignDlgFill.cpp fills its controls.
#include "ui/SignDlg.h"

#include "config/INIConfig.h"
#include "module/Guarded.h"
#include "module/InfoMessage.h"
#include "sign/DateStyle.h"
#include "ui/ResourceText.h"
#include "ui/SignScope.h"

using namespace varnoke;

namespace {

CString WindowText(const CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return text;
}

// Zeros when the picker has no date.
CalendarDate PickedDate(const CDateTimeCtrl& picker) {
    CalendarDate date;
    SYSTEMTIME time = {};
    if (picker.GetTime(&time) == GDT_VALID) {
        date.m_nYear = time.wYear;
        date.m_nMonth = time.wMonth;
        date.m_nDay = time.wDay;
    }
    return date;
}

} // namespace

BEGIN_MESSAGE_MAP(CSignDlg, CDialog)
    ON_BN_CLICKED(IDC_CONFIRM, &CSignDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &CSignDlg::OnCancel)
    ON_BN_CLICKED(IDC_SCOPE_CURRENT, &CSignDlg::OnClickedScopeCurrent)
    ON_BN_CLICKED(IDC_SCOPE_OPENED, &CSignDlg::OnClickedScopeOpened)
    ON_BN_CLICKED(IDC_SCOPE_ALL, &CSignDlg::OnClickedScopeAll)
END_MESSAGE_MAP()

CSignDlg::CSignDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

int CSignDlg::SetScopeSelectable(int nSelectable) {
    m_nScopeSelectable = nSelectable;
    return 1;
}

int CSignDlg::SetUserName(const CString& strUserName) {
    return Guarded(0, [&] {
        m_strUserNameIn = strUserName;
        if (!m_strUserNameIn.IsEmpty()) return 1;
        wchar_t name[2048] = {};
        DWORD size = 2047;
        if (!::GetUserNameW(name, &size)) return 0;
        m_strUserNameIn = name;
        return 1;
    });
}

int CSignDlg::SetRole(const CString& strRole) {
    return Guarded(0, [&] {
        m_strRoleIn = strRole;
        if (m_strRoleIn.IsEmpty()) m_strRoleIn = L"设计";
        return 1;
    });
}

int CSignDlg::SetSealDrawingPath(const CString& strPath) {
    return Guarded(0, [&] {
        if (strPath.IsEmpty()) return 0;
        m_strSealDrawingPath = strPath;
        return 1;
    });
}

int CSignDlg::SetSettings(CINIConfig* pSettings) {
    if (pSettings == nullptr) return 0;
    m_pSettings = pSettings;
    return 1;
}

void CSignDlg::OnClickedScopeCurrent() {
    OnScopeClicked(kScopeCurrent, m_boxCurrent);
}

void CSignDlg::OnClickedScopeOpened() {
    OnScopeClicked(kScopeOpened, m_boxOpened);
}

void CSignDlg::OnClickedScopeAll() {
    OnScopeClicked(kScopeAll, m_boxAll);
}

void CSignDlg::OnScopeClicked(int nScope, const CButton& box) {
    if (m_nScopeSelectable != 0) ShowScope(ScopeAfterClick(nScope, box.GetCheck() == BST_CHECKED));
}

void CSignDlg::ShowScope(int nScope) {
    const SScopeBoxes state = ScopeBoxes(nScope);
    CButton* const boxes[kScopeCount] = {&m_boxCurrent, &m_boxOpened, &m_boxAll};
    for (int i = 0; i < kScopeCount; ++i) {
        boxes[i]->EnableWindow(state.m_abEnabled[i]);
        boxes[i]->SetCheck(state.m_abChecked[i] ? BST_CHECKED : BST_UNCHECKED);
    }
}

void CSignDlg::OnOK() {
    const bool confirmed = Guarded(false, [this] {
        const SSignInput input = ReadInput();
        if (const UINT fault = FindSignFault(input)) {
            ShowInfo(ResourceText(fault), this);
            return false;
        }
        Collect(input);
        return true;
    });
    if (!confirmed) return;
    Guarded([this] { WriteBack(); });
    EndDialog(IDOK);
}

SSignInput CSignDlg::ReadInput() const {
    SSignInput input;
    input.m_strUserName = WindowText(m_editUserName);
    input.m_strRole = WindowText(m_editRole);
    input.m_strSealName = WindowText(m_editSealName);
    input.m_strDateFormat = WindowText(m_comboDateFormat);
    input.m_strDateLocation = WindowText(m_comboDateLocation);
    input.m_strFontSize = WindowText(m_comboFontSize);
    input.m_bColorValid = m_comboTextColor.GetSelectedColor(&input.m_nColor);
    input.m_bCurrent = m_boxCurrent.GetCheck() == BST_CHECKED;
    input.m_bOpened = m_boxOpened.GetCheck() == BST_CHECKED;
    input.m_bAll = m_boxAll.GetCheck() == BST_CHECKED;
    return input;
}

void CSignDlg::Collect(const SSignInput& input) {
    m_strUserNameOut = input.m_strUserName;
    m_strRoleOut = input.m_strRole;
    m_strSealNameOut = input.m_strSealName;
    m_strSignDateText = RenderDate(input.m_strDateFormat, PickedDate(m_pickerSignTime));
    m_strDateFormatOut = input.m_strDateFormat;
    m_strDateLocationOut = input.m_strDateLocation;
    m_strFontSizeOut = input.m_strFontSize;
    m_nTextColor = input.m_nColor;
    m_strTextColorOut.Format(L"%d", input.m_nColor);
    m_nScope = ChosenScope(input.m_bOpened, input.m_bAll);
}

void CSignDlg::WriteBack() {
    if (m_pSettings == nullptr) return;
    m_pSettings->SetDateStyle(m_strDateFormatOut);
    m_pSettings->SetDateLocation(m_strDateLocationOut);
    m_pSettings->SetDateFontSize(FontSizeValue(m_strFontSizeOut));
    m_pSettings->SetDateTextColor(m_nTextColor);
    m_pSettings->SetScope(m_nScope);
}
