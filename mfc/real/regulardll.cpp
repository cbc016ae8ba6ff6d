// What a regular DLL links itself when the framework's code is in mfc140u.dll: its module state, its windows'
// procedure and its entry point.
#include <afxwin.h>
#include <new>
#include <stdlib.h>

void AFXAPI AfxWinTerm();
void AFXAPI AfxTermThread(HINSTANCE hInstTerm);

namespace {

LRESULT CALLBACK WndProcOfThisModule(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    return AfxWndProc(hWnd, nMsg, wParam, lParam);
}

alignas(AFX_MODULE_STATE) BYTE g_stateMemory[sizeof(AFX_MODULE_STATE)];
AFX_MODULE_STATE* g_pState = nullptr;
AFX_MODULE_STATE* g_pCallersState = nullptr; // while the loader is in this module

void __cdecl GiveStateBack() {
    AfxSetModuleState(g_pCallersState);
    g_pState->~AFX_MODULE_STATE();
    g_pState = nullptr;
}

// Before any static object is built: the application object registers with the current state. The first
// function registered for the end runs last, behind the application object's destructor.
void __cdecl TakeState() {
    g_pState = ::new (g_stateMemory) AFX_MODULE_STATE(TRUE, &WndProcOfThisModule, _MFC_VER);
    g_pCallersState = AfxSetModuleState(g_pState);
    atexit(&GiveStateBack);
}

#pragma section(".CRT$XCB", long, read)
__declspec(allocate(".CRT$XCB")) __attribute__((used)) void(__cdecl* const g_takeState)() = &TakeState;

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

BOOL End() {
    if (!g_bStarted) return FALSE;
    g_bStarted = false;
    CWinApp* pApp = AfxGetApp();
    const BOOL bResult = pApp == nullptr || pApp->ExitInstance() == 0;
    AfxWinTerm();
    return bResult;
}

BOOL Start(HINSTANCE hInstance) {
    wchar_t noCommandLine[] = L"";
    if (!AfxWinInit(hInstance, nullptr, noCommandLine, 0)) return FALSE;
    g_bStarted = true;
    CWinApp* pApp = AfxGetApp();
    return pApp == nullptr || pApp->InitInstance();
}

} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    return g_pState;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    switch (dwReason) {
    case DLL_PROCESS_ATTACH:
        if (WithoutExceptions([hInstance] { return Start(hInstance); })) {
            AfxSetModuleState(g_pCallersState);
            return TRUE;
        }
        WithoutExceptions(End); // undoes what InitInstance did before it gave up
        return FALSE;
    case DLL_PROCESS_DETACH:
        // After a refused start the loader comes once more.
        if (g_pState == nullptr) return TRUE;
        // Stays the current state until the static objects are gone.
        if (AfxGetModuleState() != g_pState) g_pCallersState = AfxSetModuleState(g_pState);
        WithoutExceptions(End);
        return TRUE;
    case DLL_THREAD_DETACH: {
        AFX_MANAGE_STATE(g_pState)
        WithoutExceptions([hInstance] { return AfxTermThread(hInstance), TRUE; });
        return TRUE;
    }
    default:
        return TRUE;
    }
}
