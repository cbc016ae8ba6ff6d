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
    // The module state is kept per thread; touched while a thread ends, it would leave handles behind.
    if (dwReason == DLL_THREAD_DETACH) CThreadWindows::Drop();
    if (dwReason == DLL_THREAD_ATTACH || dwReason == DLL_THREAD_DETACH) return TRUE;

    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    if (dwReason == DLL_PROCESS_DETACH) {
        WithoutExceptions(End);
        return TRUE;
    }
    if (WithoutExceptions([hInstance] { return Start(hInstance); })) return TRUE;
    WithoutExceptions(End); // undoes what InitInstance did before it gave up
    return FALSE;
}
