// Entry point of a regular DLL: runs the application object's start and end with the DLL.
#include "win/ThreadWindows.h"

namespace {

bool g_bRunning = false; // InitInstance agreed, ExitInstance is still to be called

TCHAR g_szNoCommandLine[] = _T("");

// The loader knows no exceptions.
BOOL Start(HINSTANCE hInstance) noexcept {
    try {
        if (!AfxWinInit(hInstance, nullptr, g_szNoCommandLine, 0)) return FALSE;
        CWinApp* pApp = AfxGetApp();
        g_bRunning = pApp == nullptr || pApp->InitInstance();
        // What InitInstance did before it gave up is undone; the loader calls no entry point for it.
        if (!g_bRunning) pApp->ExitInstance();
        return g_bRunning;
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    return FALSE;
}

void End() noexcept {
    if (!g_bRunning) return;
    g_bRunning = false;
    try {
        if (CWinApp* pApp = AfxGetApp()) pApp->ExitInstance();
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    CThreadWindows::Drop();
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    switch (dwReason) {
    case DLL_PROCESS_ATTACH:
        return Start(hInstance);
    case DLL_PROCESS_DETACH:
        End();
        break;
    case DLL_THREAD_DETACH:
        CThreadWindows::Drop();
        break;
    }
    return TRUE;
}
