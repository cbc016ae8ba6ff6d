// Entry point of a DLL. Destructors of its static objects run when it is unloaded.
#include "startup.h"
#include <windows.h>
#include <corecrt_startup.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved);

namespace {

_onexit_table_t g_exitFunctions;

BOOL Attach(HINSTANCE instance, LPVOID reserved) {
    if (_initialize_onexit_table(&g_exitFunctions) != 0 || !abi::RunInitializers()) return FALSE;
    if (DllMain(instance, DLL_PROCESS_ATTACH, reserved)) return TRUE;
    DllMain(instance, DLL_PROCESS_DETACH, reserved);
    _execute_onexit_table(&g_exitFunctions);
    return FALSE;
}

} // namespace

extern "C" {

// The compiler registers destructors here; the process-wide list would outlive the DLL's code.
int __cdecl atexit(void(__cdecl* function)()) {
    return _register_onexit_function(&g_exitFunctions, reinterpret_cast<_onexit_t>(function));
}

BOOL WINAPI _DllMainCRTStartup(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    if (reason == DLL_PROCESS_ATTACH) return Attach(instance, reserved);
    const BOOL result = DllMain(instance, reason, reserved);
    if (reason == DLL_PROCESS_DETACH) _execute_onexit_table(&g_exitFunctions);
    return result;
}
}
