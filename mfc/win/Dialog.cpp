// CDialog: modal dialogs.
#include "win/DialogTemplate.h"
#include "win/ThreadWindows.h"
#include "win/OleContainer.h"

#include <commctrl.h>

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
END_MESSAGE_MAP()

// What the framework keeps of a dialog while it runs.
struct _AFX_OCC_DIALOG_INFO : CDialogTemplate {};

BOOL CDialog::SetOccDialogInfo(_AFX_OCC_DIALOG_INFO* pOccDialogInfo) {
    m_pOccDialogInfo = pOccDialogInfo;
    return TRUE;
}

_AFX_OCC_DIALOG_INFO* CDialog::GetOccDialogInfo() {
    return m_pOccDialogInfo;
}

namespace {

// Takes no input from construction until Enable or the end of the scope.
class CDisabledOwner {
public:
    explicit CDisabledOwner(HWND hWnd) : m_hWnd(hWnd) {
        if (m_hWnd != nullptr) ::EnableWindow(m_hWnd, FALSE);
    }
    ~CDisabledOwner() { Enable(); }
    CDisabledOwner(const CDisabledOwner&) = delete;
    CDisabledOwner& operator=(const CDisabledOwner&) = delete;

    void Enable() {
        if (m_hWnd != nullptr) ::EnableWindow(m_hWnd, TRUE);
        m_hWnd = nullptr;
    }

private:
    HWND m_hWnd; // null when there is nothing to enable again
};

void RegisterCommonControls() {
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&controls);
}

} // namespace

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDHelp(nIDTemplate), m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)), m_hDialogTemplate(nullptr),
      m_lpDialogTemplate(nullptr), m_lpDialogInit(nullptr), m_pParentWnd(pParentWnd), m_hWndTop(nullptr),
      m_bClosedByEndDialog(FALSE), m_pOccDialogInfo(nullptr) {}

CDialog::~CDialog() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

HWND PASCAL CWnd::GetSafeOwner_(HWND hWndParent, HWND*) {
    HWND hWnd = hWndParent != nullptr ? hWndParent : ::GetActiveWindow();
    while (hWnd != nullptr && (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    return hWndParent == nullptr && hWnd != nullptr ? ::GetLastActivePopup(hWnd) : hWnd;
}

INT_PTR CDialog::DoModal() {
    _AFX_OCC_DIALOG_INFO dialogTemplate;
    if (!dialogTemplate.Load(m_lpszTemplateName)) return -1;
    RegisterCommonControls();
    if (!dialogTemplate.OleControls().empty()) OleContainer::Prepare();

    SetOccDialogInfo(&dialogTemplate);
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    RunFromTemplate(dialogTemplate, GetSafeOwner_(m_pParentWnd->GetSafeHwnd(), nullptr));
    m_nFlags &= ~WF_CONTINUEMODAL;
    SetOccDialogInfo(nullptr);
    return m_nModalResult;
}

void CDialog::RunFromTemplate(const CDialogTemplate& dialogTemplate, HWND hWndOwner) {
    CThreadWindows::Get().m_pCreating = this;
    CDisabledOwner owner(hWndOwner);
    const HWND hWnd = ::CreateDialogIndirectParam(AfxGetResourceHandle(), dialogTemplate.Get(), hWndOwner,
                                                  &CDialog::DialogProc, 0);
    CThreadWindows::TakeCreated();
    if (hWnd == nullptr) {
        CThreadWindows::DropIfUnused();
        return;
    }
    if (m_nFlags & WF_CONTINUEMODAL) RunModalLoop(MLF_SHOWONIDLE);
    if (m_hWnd == nullptr) return; // somebody destroyed the window

    // Out of sight first, then back to an owner that takes input: otherwise another program comes to the
    // front.
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    owner.Enable();
    if (hWndOwner != nullptr && ::GetActiveWindow() == m_hWnd) ::SetActiveWindow(hWndOwner);
    DestroyWindow();
}

// The window gets its object with the first message that the system hands over, before any control exists.
INT_PTR CALLBACK CDialog::DialogProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    try {
        CWnd* pWnd = FromHandlePermanent(hWnd);
        if (pWnd == nullptr && (pWnd = CThreadWindows::TakeCreated()) != nullptr) {
            pWnd->SubclassWindow(hWnd);
            // This very message came past the object.
            if (message == WM_INITDIALOG) return AfxWndProc(hWnd, message, wParam, lParam);
        }
        if (message == WM_INITDIALOG && pWnd != nullptr) {
            // The focus would bring a dialog to the front that has ended already.
            return static_cast<CDialog*>(pWnd)->OnInitDialog() && pWnd->ContinueModal();
        }
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    return message == WM_INITDIALOG;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    CreateOleControls();
    CRect rectBefore, rectAfter;
    GetWindowRect(rectBefore);
    LRESULT lResult = Default();
    if (lResult && m_hWnd != nullptr && !GetOccDialogInfo()->OleControls().empty()) {
        // As in MFC: with such controls the framework sets the focus, which selects no text.
        ::SetFocus(::GetNextDlgTabItem(m_hWnd, nullptr, FALSE));
        lResult = FALSE;
    }
    // A dialog that placed or showed itself stays where it is.
    if (m_hWnd == nullptr || IsWindowVisible() || (GetStyle() & WS_CHILD)) return lResult;
    GetWindowRect(rectAfter);
    if (rectBefore.TopLeft() == rectAfter.TopLeft() && CheckAutoCenter()) CenterWindow();
    return lResult;
}

// A control that can't be made leaves its place empty.
void CDialog::CreateOleControls() {
    for (const CDialogTemplate::OleControl& control : GetOccDialogInfo()->OleControls())
        OleContainer::CreateControl(::GetDlgItem(m_hWnd, control.nID), control.strClass);
}

BOOL CDialog::CheckAutoCenter() {
    return m_pOccDialogInfo != nullptr && m_pOccDialogInfo->HasFreePlace();
}

BOOL CDialog::OnInitDialog() {
    if (UpdateData(FALSE)) return TRUE;
    EndDialog(-1); // a dialog without its controls is of no use
    return FALSE;
}

void CDialog::EndDialog(int nResult) {
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) EndModalLoop(nResult);
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || OleContainer::TranslateKey(m_hWnd, pMsg) ||
           PreTranslateInput(pMsg);
}
