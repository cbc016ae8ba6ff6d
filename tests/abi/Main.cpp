// Test program of the Microsoft-ABI build: the runtime, and Varnoke.dll as a Visual C++-like host uses it.
#include <afxwin.h>
#include <objbase.h>
#include <stdio.h>
#include "tests/abi/Checks.h"

static int g_passed = 0;
static int g_failed = 0;

void checks::Check(bool holds, const char* text, const char* file, int line) {
    ++(holds ? g_passed : g_failed);
    if (holds) return;
    printf("%s:%d: failed: %s\n", file, line, text);
    fflush(stdout);
}

int wmain(int argc, wchar_t** argv) {
    CHECK(argc >= 1 && wcsstr(argv[0], L"test-abi") != nullptr);
    if (FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    checks::Runtime();
    checks::Modules();
    checks::Library();
    CoUninitialize();
    printf("%d passed, %d failed\n", g_passed, g_failed);
    return g_failed == 0 ? 0 : 1;
}
