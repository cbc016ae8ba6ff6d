// CWinApp and the start of the framework in a module.
#include "win/ThreadWindows.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

CWinThread::CWinThread() : m_pMainWnd(nullptr) {}

CWinThread::~CWinThread() = default;

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::Run() {
    CMessageLoop loop;
    do {
        MSG msg;
        if (!::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) loop.Idle();
    } while (AfxPumpMessage());
    return ExitInstance();
}

int CWinThread::ExitInstance() {
    return 0;
}

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(nullptr), m_lpCmdLine(nullptr), m_nCmdShow(0), m_pszAppName(lpszAppName) {
    AfxGetStaticModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE* pState = AfxGetStaticModuleState();
    if (pState->m_pCurrentWinApp == this) pState->m_pCurrentWinApp = nullptr;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    MSG msg = {};
    return ::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) ? static_cast<int>(msg.wParam) : 0;
}

void CWinApp::SetModule(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow) {
    m_hInstance = hInstance;
    m_lpCmdLine = lpCmdLine;
    m_nCmdShow = nCmdShow;
    if (m_pszAppName != nullptr) return;
    TCHAR szPath[MAX_PATH] = {};
    ::GetModuleFileName(hInstance, szPath, _countof(szPath) - 1);
    m_strAppName = szPath;
    m_strAppName = m_strAppName.Mid(m_strAppName.ReverseFind(_T('\\')) + 1);
    const int nDot = m_strAppName.ReverseFind(_T('.'));
    if (nDot > 0) m_strAppName = m_strAppName.Left(nDot);
    m_pszAppName = m_strAppName;
}

CWinApp* AFXAPI AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWnd* AFXAPI AfxGetMainWnd() {
    CWinApp* pApp = AfxGetApp();
    return pApp != nullptr ? pApp->GetMainWnd() : nullptr;
}

LPCTSTR AFXAPI AfxGetAppName() {
    const CWinApp* pApp = AfxGetApp();
    return pApp != nullptr && pApp->m_pszAppName != nullptr ? pApp->m_pszAppName : _T("");
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AFX_MODULE_STATE* pState = AfxGetStaticModuleState();
    pState->m_hCurrentInstanceHandle = hInstance;
    pState->m_hCurrentResourceHandle = hInstance;
    if (pState->m_pCurrentWinApp != nullptr) pState->m_pCurrentWinApp->SetModule(hInstance, lpCmdLine, nCmdShow);
    return TRUE;
}
