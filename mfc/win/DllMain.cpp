// Entry point of a regular DLL: runs the application object's start and end with the DLL.
#include "win/ThreadWindows.h"

namespace {

bool g_bStarted = false; // ExitInstance is still to be called

// The loader knows no exceptions.
template <class TStep>
BOOL WithoutExceptions(TStep step) noexcept {
    try {
        return step();
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    return FALSE;
}

BOOL Start(HINSTANCE hInstance) {
    AfxWinInit(hInstance, nullptr, nullptr, 0);
    g_bStarted = true;
    CWinApp* pApp = AfxGetApp();
    return pApp == nullptr || pApp->InitInstance();
}

BOOL End() {
    if (!g_bStarted) return FALSE;
    g_bStarted = false;
    CThreadWindows::Drop();
    CWinApp* pApp = AfxGetApp();
    return pApp == nullptr || pApp->ExitInstance() == 0;
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    switch (dwReason) {
    case DLL_PROCESS_ATTACH:
        if (WithoutExceptions([hInstance] { return Start(hInstance); })) return TRUE;
        WithoutExceptions(End); // undoes what InitInstance did before it gave up
        return FALSE;
    case DLL_PROCESS_DETACH:
        WithoutExceptions(End);
        break;
    case DLL_THREAD_DETACH:
        CThreadWindows::Drop();
        break;
    }
    return TRUE;
}
