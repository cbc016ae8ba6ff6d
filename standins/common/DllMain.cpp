// Entry point of the stand-in DLLs: nothing is prepared while the loader holds its lock.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, void*) {
    return TRUE;
}
