// CWinApp and the start of the framework in a module.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
END_MESSAGE_MAP()

CWinThread::CWinThread() : m_pMainWnd(nullptr) {}

CWinThread::~CWinThread() = default;

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return 0;
}

CWinApp::CWinApp(LPCTSTR) : m_hInstance(nullptr), m_dwRestartManagerSupportFlags(0) {
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

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR, int) {
    AFX_MODULE_STATE* pState = AfxGetStaticModuleState();
    pState->m_hCurrentInstanceHandle = hInstance;
    pState->m_hCurrentResourceHandle = hInstance;
    if (pState->m_pCurrentWinApp != nullptr) pState->m_pCurrentWinApp->m_hInstance = hInstance;
    return TRUE;
}
