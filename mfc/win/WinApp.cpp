// CWinApp and the start of the framework in a module.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinApp, CCmdTarget)

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pMainWnd(nullptr), m_hInstance(nullptr), m_pszAppName(lpszAppName) {
    AfxGetStaticModuleState()->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp() {
    AfxGetStaticModuleState()->m_pCurrentWinApp = nullptr;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::ExitInstance() {
    return 0;
}

void CWinApp::SetModule(HINSTANCE hInstance) {
    m_hInstance = hInstance;
    if (m_pszAppName != nullptr) return;
    TCHAR szPath[MAX_PATH + 1] = {};
    ::GetModuleFileName(hInstance, szPath, MAX_PATH);
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
    const CWinApp* pApp = AfxGetApp();
    return pApp != nullptr ? pApp->m_pMainWnd : nullptr;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR, int) {
    AFX_MODULE_STATE* pState = AfxGetStaticModuleState();
    pState->m_hCurrentInstanceHandle = hInstance;
    pState->m_hCurrentResourceHandle = hInstance;
    if (pState->m_pCurrentWinApp != nullptr) pState->m_pCurrentWinApp->SetModule(hInstance);
    return TRUE;
}
