// Entry point of a console program: calls wmain(argc, argv).
#include "startup.h"
#include <windows.h>
#include <corecrt_startup.h>
#include <stdlib.h>

namespace {

// Numbers of the run-time library for which its headers here have no names.
constexpr int CONSOLE_APP = 1;
constexpr int ARGV_WITHOUT_WILDCARD_EXPANSION = 1;
constexpr int START_FAILED = 255;

} // namespace

extern "C" {

void __cdecl _set_app_type(int type);
int __cdecl _configure_wide_argv(int mode);
int __cdecl wmain(int argc, wchar_t** argv);

int __cdecl atexit(void(__cdecl* function)()) {
    return _crt_atexit(function);
}

void WINAPI wmainCRTStartup() {
    _set_app_type(CONSOLE_APP);
    if (_configure_wide_argv(ARGV_WITHOUT_WILDCARD_EXPANSION) != 0 || !abi::RunInitializers())
        exit(START_FAILED);
    exit(wmain(*__p___argc(), *__p___wargv()));
}
}
