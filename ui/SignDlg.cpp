#include "ui/SignDlg.h"

#include <algorithm>
#include <iterator>

#include "varnoke/INIConfig.h"
#include "module/Guarded.h"
#include "ui/InfoMessage.h"
#include "config/DateStyle.h"
#include "module/ResourceText.h"
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
        date.year = time.wYear;
        date.month = time.wMonth;
        date.day = time.wDay;
    }
    return date;
}

} // namespace

BEGIN_MESSAGE_MAP(CSignDlg, CDialog)
    ON_MESSAGE(WM_ACTIVATE, &CSignDlg::OnActivated)
    ON_BN_CLICKED(IDC_CONFIRM, &CSignDlg::OnOK)
    ON_BN_CLICKED(IDC_DISMISS, &CSignDlg::OnCancel)
    ON_BN_CLICKED(IDC_SCOPE_CURRENT, &CSignDlg::OnClickedScopeCurrent)
    ON_BN_CLICKED(IDC_SCOPE_OPENED, &CSignDlg::OnClickedScopeOpened)
    ON_BN_CLICKED(IDC_SCOPE_ALL, &CSignDlg::OnClickedScopeAll)
END_MESSAGE_MAP()

CSignDlg::CSignDlg(CWnd* parent) : CDialog(IDD, parent) {}

int CSignDlg::SetScopeSelectable(int selectable) {
    m_scopeSelectable = selectable;
    return 1;
}

int CSignDlg::SetUserName(const CString& userName) {
    return Guarded(0, [&] {
        m_userNameIn = userName;
        if (!m_userNameIn.IsEmpty()) return 1;
        wchar_t name[2048] = {};
        DWORD size = 2047;
        if (!::GetUserNameW(name, &size)) return 0;
        m_userNameIn = name;
        return 1;
    });
}

int CSignDlg::SetRole(const CString& role) {
    return Guarded(0, [&] {
        m_roleIn = role;
        if (m_roleIn.IsEmpty()) m_roleIn = L"设计";
        return 1;
    });
}

int CSignDlg::SetSealDrawingPath(const CString& path) {
    return Guarded(0, [&] {
        if (path.IsEmpty()) return 0;
        m_sealDrawingPath = path;
        return 1;
    });
}

int CSignDlg::SetSettings(CINIConfig* settings) {
    if (!settings) return 0;
    m_settings = settings;
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

void CSignDlg::OnScopeClicked(int scope, const CButton& box) {
    if (m_scopeSelectable != 0) ShowScope(ScopeAfterClick(scope, box.GetCheck() == BST_CHECKED));
}

void CSignDlg::ShowScope(int scope) {
    const ScopeState state = ScopeBoxes(scope);
    CButton* const boxes[kScopeCount] = {&m_boxCurrent, &m_boxOpened, &m_boxAll};
    for (int i = 0; i < kScopeCount; ++i) {
        boxes[i]->EnableWindow(state.enabled[i]);
        boxes[i]->SetCheck(state.checked[i] ? BST_CHECKED : BST_UNCHECKED);
    }
}

// The colours are not drawn while no window has the focus.
LRESULT CSignDlg::OnActivated(WPARAM, LPARAM) {
    if (m_comboTextColor.GetSafeHwnd()) m_comboTextColor.Invalidate();
    return Default();
}

void CSignDlg::OnOK() {
    const bool confirmed = Guarded(false, [this] {
        const SignInput input = ReadInput();
        if (const UINT fault = FindSignFault(input)) {
            ShowInfo(ResourceText(fault), this);
            return false;
        }
        Collect(input);
        return true;
    });
    if (!confirmed) return;
    Guarded([this] {
        if (!WriteBack()) ShowInfo(ResourceText(IDS_NOT_STORED), this);
    });
    EndDialog(IDOK);
}

SignInput CSignDlg::ReadInput() const {
    SignInput input;
    input.userName = WindowText(m_editUserName);
    input.role = WindowText(m_editRole);
    input.sealName = WindowText(m_editSealName);
    input.dateFormat = WindowText(m_comboDateFormat);
    input.dateLocation = WindowText(m_comboDateLocation);
    input.fontSize = WindowText(m_comboFontSize);
    input.colorValid = m_comboTextColor.GetSelectedColor(&input.color);
    input.current = m_boxCurrent.GetCheck() == BST_CHECKED;
    input.opened = m_boxOpened.GetCheck() == BST_CHECKED;
    input.all = m_boxAll.GetCheck() == BST_CHECKED;
    return input;
}

void CSignDlg::Collect(const SignInput& input) {
    m_userNameOut = input.userName;
    m_roleOut = input.role;
    m_sealNameOut = input.sealName;
    m_signDateText = RenderDate(input.dateFormat, PickedDate(m_pickerSignTime));
    m_dateFormatOut = input.dateFormat;
    m_dateLocationOut = input.dateLocation;
    m_fontSizeOut = input.fontSize;
    m_textColor = input.color;
    m_textColorOut.Format(L"%d", input.color);
    m_scope = ChosenScope(input.opened, input.all);
}

bool CSignDlg::WriteBack() {
    if (!m_settings) return true;
    const long stored[] = {m_settings->SetDateStyle(m_dateFormatOut),
                           m_settings->SetDateLocation(m_dateLocationOut),
                           m_settings->SetDateFontSize(FontSizeValue(m_fontSizeOut)),
                           m_settings->SetDateTextColor(m_textColor), m_settings->SetScope(m_scope)};
    return std::find(std::begin(stored), std::end(stored), 0) == std::end(stored);
}
