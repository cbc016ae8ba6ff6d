// Entry of the long runs.
#include <afxwin.h>
#include <objbase.h>

#include <cstdio>
#include <cstdlib>
#include <cwchar>

#include "tests/soak/FaultRun.h"
#include "tests/soak/ReaderRun.h"

int wmain(int argc, wchar_t** argv) {
    if (FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0)) {
        return 1;
    }
    if (argc >= 3 && wcscmp(argv[1], L"readers") == 0) {
        soak::RunReaders(wcstoull(argv[2], nullptr, 10), argc > 3 ? wcstoull(argv[3], nullptr, 10) : 1);
    } else if (argc == 2 && wcscmp(argv[1], L"faults") == 0) {
        soak::RunFaults();
    } else {
        std::fputs("usage: varnoke-soak readers COUNT [SEED] | faults\n"
                   "Work in a folder that varnoke-samples has made.\n",
                   stderr);
        return 2;
    }
    CoUninitialize();
    return 0;
}
