// Local services stand-in: all that is asked of this module is where it lies, since ModelConfig.Xml lies
// beside it.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) ::DisableThreadLibraryCalls(instance);
    return TRUE;
}
