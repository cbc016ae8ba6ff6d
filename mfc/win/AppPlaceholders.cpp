// The application object's part of what Placeholders.cpp holds.
#include <afxwin.h>

// CWinThread
int CWinThread::Run() {
    return 0;
}
BOOL CWinThread::PreTranslateMessage(MSG*) {
    return FALSE;
}
BOOL CWinThread::PumpMessage() {
    return FALSE;
}
BOOL CWinThread::OnIdle(LONG) {
    return FALSE;
}
BOOL CWinThread::IsIdleMessage(MSG*) {
    return FALSE;
}
LRESULT CWinThread::ProcessWndProcException(CException*, const MSG*) {
    return 0;
}
BOOL CWinThread::ProcessMessageFilter(int, LPMSG) {
    return FALSE;
}
CWnd* CWinThread::GetMainWnd() {
    return nullptr;
}
void CWinThread::Delete() {}

// CWinApp
int CWinApp::Run() {
    return 0;
}
BOOL CWinApp::OnIdle(LONG) {
    return FALSE;
}
LRESULT CWinApp::ProcessWndProcException(CException*, const MSG*) {
    return 0;
}
UINT CWinApp::GetProfileInt(LPCTSTR, LPCTSTR, int) {
    return 0;
}
BOOL CWinApp::WriteProfileInt(LPCTSTR, LPCTSTR, int) {
    return FALSE;
}
CString CWinApp::GetProfileString(LPCTSTR, LPCTSTR, LPCTSTR) {
    return CString();
}
BOOL CWinApp::WriteProfileString(LPCTSTR, LPCTSTR, LPCTSTR) {
    return FALSE;
}
BOOL CWinApp::GetProfileBinary(LPCTSTR, LPCTSTR, LPBYTE*, UINT*) {
    return FALSE;
}
BOOL CWinApp::WriteProfileBinary(LPCTSTR, LPCTSTR, LPBYTE, UINT) {
    return FALSE;
}
void CWinApp::InitLibId() {}
BOOL CWinApp::Register() {
    return FALSE;
}
BOOL CWinApp::Unregister() {
    return FALSE;
}
CDocument* CWinApp::OpenDocumentFile(LPCTSTR) {
    return nullptr;
}
CDocument* CWinApp::OpenDocumentFile(LPCTSTR, BOOL) {
    return nullptr;
}
void CWinApp::AddToRecentFileList(LPCTSTR) {}
BOOL CWinApp::InitApplication() {
    return FALSE;
}
BOOL CWinApp::SaveAllModified() {
    return FALSE;
}
int CWinApp::DoMessageBox(LPCTSTR, UINT, UINT) {
    return 0;
}
void CWinApp::DoWaitCursor(int) {}
BOOL CWinApp::OnDDECommand(LPTSTR) {
    return FALSE;
}
void CWinApp::WinHelp(DWORD_PTR, UINT) {}
void CWinApp::HtmlHelpW(DWORD_PTR, UINT) {}
void CWinApp::WinHelpInternal(DWORD_PTR, UINT) {}
HRESULT CWinApp::RegisterWithRestartManager(BOOL, const CString&) {
    return E_NOTIMPL;
}
HRESULT CWinApp::RegisterWithRestartManager(LPCWSTR, DWORD, DWORD(WINAPI*)(void*), LPVOID, DWORD, DWORD) {
    return E_NOTIMPL;
}
DWORD CWinApp::ApplicationRecoveryCallback(LPVOID) {
    return 0;
}
CDataRecoveryHandler* CWinApp::GetDataRecoveryHandler() {
    return nullptr;
}
BOOL CWinApp::IsTaskbarInteractionEnabled() {
    return FALSE;
}
BOOL CWinApp::RestartInstance() {
    return FALSE;
}
HINSTANCE CWinApp::LoadAppLangResourceDLL() {
    return nullptr;
}
BOOL CWinApp::LoadSysPolicies() {
    return FALSE;
}
