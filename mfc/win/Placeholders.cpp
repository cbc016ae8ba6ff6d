// The virtual functions that nobody uses here. They hold MFC's places in the tables, so that what is built
// against this framework runs with the real one too; called, they do nothing and report failure.
#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdlgs.h>
#include <afxdtctl.h>

// CCmdTarget
void CCmdTarget::OnFinalRelease() {}
BOOL CCmdTarget::IsInvokeAllowed(DISPID) {
    return TRUE;
}
BOOL CCmdTarget::GetDispatchIID(IID*) {
    return FALSE;
}
UINT CCmdTarget::GetTypeInfoCount() {
    return 0;
}
CTypeLibCache* CCmdTarget::GetTypeLibCache() {
    return nullptr;
}
HRESULT CCmdTarget::GetTypeLib(LCID, LPTYPELIB*) {
    return E_NOTIMPL;
}
const AFX_OLECMDMAP* CCmdTarget::GetCommandMap() const {
    return nullptr;
}
const AFX_DISPMAP* CCmdTarget::GetDispatchMap() const {
    return nullptr;
}
const AFX_CONNECTIONMAP* CCmdTarget::GetConnectionMap() const {
    return nullptr;
}
const AFX_INTERFACEMAP* CCmdTarget::GetInterfaceMap() const {
    return nullptr;
}
const AFX_EVENTSINKMAP* CCmdTarget::GetEventSinkMap() const {
    return nullptr;
}
BOOL CCmdTarget::OnCreateAggregates() {
    return TRUE;
}
LPUNKNOWN CCmdTarget::GetInterfaceHook(const void*) {
    return nullptr;
}
BOOL CCmdTarget::GetExtraConnectionPoints(CPtrArray*) {
    return FALSE;
}
IConnectionPoint* CCmdTarget::GetConnectionHook(const IID&) {
    return nullptr;
}

// CWnd
void CWnd::OnFinalRelease() {}
const AFX_INTERFACEMAP* CWnd::GetInterfaceMap() const {
    return nullptr;
}
BOOL CWnd::Create(LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, CCreateContext*) {
    return FALSE;
}
BOOL CWnd::CreateEx(DWORD, LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, LPVOID) {
    return FALSE;
}
BOOL CWnd::PreCreateWindow(CREATESTRUCT&) {
    return TRUE;
}
void CWnd::CalcWindowRect(LPRECT, UINT) {}
CMenu* CWnd::GetMenu() const {
    return nullptr;
}
BOOL CWnd::SetMenu(CMenu*) {
    return FALSE;
}
INT_PTR CWnd::OnToolHitTest(CPoint, tagTOOLINFOW*) const {
    return 0;
}
CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}
void CWnd::WinHelp(DWORD_PTR, UINT) {}
void CWnd::HtmlHelpW(DWORD_PTR, UINT) {}
void CWnd::WinHelpInternal(DWORD_PTR, UINT) {}
void CWnd::OnDrawIconicThumbnailOrLivePreview(CDC&, CRect, CSize, BOOL, BOOL&) {}
HRESULT CWnd::EnsureStdObj() {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accParent(IDispatch**) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accChildCount(long*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accChild(VARIANT, IDispatch**) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accName(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accValue(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accDescription(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accRole(VARIANT, VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accState(VARIANT, VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accHelp(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accHelpTopic(BSTR*, VARIANT, long*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accKeyboardShortcut(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accFocus(VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accSelection(VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::get_accDefaultAction(VARIANT, BSTR*) {
    return E_NOTIMPL;
}
HRESULT CWnd::accSelect(long, VARIANT) {
    return E_NOTIMPL;
}
HRESULT CWnd::accLocation(long*, long*, long*, long*, VARIANT) {
    return E_NOTIMPL;
}
HRESULT CWnd::accNavigate(long, VARIANT, VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::accHitTest(long, long, VARIANT*) {
    return E_NOTIMPL;
}
HRESULT CWnd::accDoDefaultAction(VARIANT) {
    return E_NOTIMPL;
}
HRESULT CWnd::put_accName(VARIANT, BSTR) {
    return E_NOTIMPL;
}
HRESULT CWnd::put_accValue(VARIANT, BSTR) {
    return E_NOTIMPL;
}
HRESULT CWnd::SetProxy(IAccessibleProxy*) {
    return E_NOTIMPL;
}
HRESULT CWnd::CreateAccessibleProxy(WPARAM, LPARAM, LRESULT*) {
    return E_NOTIMPL;
}
BOOL CWnd::OnNotify(WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}
WNDPROC* CWnd::GetSuperWndProcAddr() {
    return &m_pfnSuper;
}
BOOL CWnd::OnAmbientProperty(COleControlSite*, DISPID, VARIANT*) {
    return FALSE;
}
void CWnd::PostNcDestroy() {}
BOOL CWnd::OnTouchInputs(UINT, tagTOUCHINPUT*) {
    return FALSE;
}
BOOL CWnd::OnTouchInput(CPoint, int, int, tagTOUCHINPUT*) {
    return FALSE;
}
ULONG CWnd::GetGestureStatus(CPoint) {
    return 0;
}
BOOL CWnd::OnGestureZoom(CPoint, long) {
    return FALSE;
}
BOOL CWnd::OnGesturePan(CPoint, CPoint) {
    return FALSE;
}
BOOL CWnd::OnGestureRotate(CPoint, double) {
    return FALSE;
}
BOOL CWnd::OnGestureTwoFingerTap(CPoint) {
    return FALSE;
}
BOOL CWnd::OnGesturePressAndTap(CPoint, long) {
    return FALSE;
}
void CWnd::ResizeDynamicLayout() {}
BOOL CWnd::IsFrameWnd() const {
    return FALSE;
}
BOOL CWnd::CreateControlContainer(COleControlContainer**) {
    return FALSE;
}
BOOL CWnd::CreateControlSite(COleControlContainer*, COleControlSite**, UINT, REFCLSID) {
    return FALSE;
}
BOOL CWnd::SetOccDialogInfo(_AFX_OCC_DIALOG_INFO*) {
    return FALSE;
}
_AFX_OCC_DIALOG_INFO* CWnd::GetOccDialogInfo() {
    return nullptr;
}

// CStatic
BOOL CStatic::Create(LPCTSTR, DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}
void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}
BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// CButton
BOOL CButton::Create(LPCTSTR, DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}
void CButton::DrawItem(LPDRAWITEMSTRUCT) {}
BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

// CComboBox
BOOL CComboBox::Create(DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

// CDialog
BOOL CDialog::Create(LPCTSTR, CWnd*) {
    return FALSE;
}
BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE, CWnd*, void*) {
    return FALSE;
}
BOOL CDialog::CreateIndirect(HGLOBAL, CWnd*) {
    return FALSE;
}
void CDialog::OnSetFont(CFont*) {}
BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
void CDialog::PreInitDialog() {}

// CDC
void CDC::SetAttribDC(HDC) {}
void CDC::SetOutputDC(HDC) {}
void CDC::ReleaseAttribDC() {}
void CDC::ReleaseOutputDC() {}
int CDC::SaveDC() {
    return 0;
}
BOOL CDC::RestoreDC(int) {
    return FALSE;
}
CGdiObject* CDC::SelectStockObject(int) {
    return nullptr;
}
CFont* CDC::SelectObject(CFont*) {
    return nullptr;
}
COLORREF CDC::SetBkColor(COLORREF) {
    return 0;
}
COLORREF CDC::SetTextColor(COLORREF) {
    return 0;
}
int CDC::SetMapMode(int) {
    return 0;
}
CPoint CDC::SetViewportOrg(int, int) {
    return CPoint(0, 0);
}
CPoint CDC::OffsetViewportOrg(int, int) {
    return CPoint(0, 0);
}
CSize CDC::SetViewportExt(int, int) {
    return CSize(0, 0);
}
CSize CDC::ScaleViewportExt(int, int, int, int) {
    return CSize(0, 0);
}
CSize CDC::SetWindowExt(int, int) {
    return CSize(0, 0);
}
CSize CDC::ScaleWindowExt(int, int, int, int) {
    return CSize(0, 0);
}
int CDC::GetClipBox(LPRECT) const {
    return 0;
}

// CProgressCtrl
BOOL CProgressCtrl::Create(DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}
BOOL CProgressCtrl::CreateEx(DWORD, DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}

// CDateTimeCtrl
BOOL CDateTimeCtrl::Create(DWORD, const RECT&, CWnd*, UINT) {
    return FALSE;
}

// COleException
BOOL COleException::GetErrorMessage(LPTSTR, UINT, PUINT) const {
    return FALSE;
}

// COleDispatchException
BOOL COleDispatchException::GetErrorMessage(LPTSTR, UINT, PUINT) const {
    return FALSE;
}
