// Entry of every test program: the framework started as a host would, COM, a watchdog.
#include <afxwin.h>
#include <objbase.h>
#include <gtest/gtest.h>
#include "tests/support/Watchdog.h"

int wmain(int argc, wchar_t** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    testing::UnitTest::GetInstance()->listeners().Append(new tests::Watchdog);
    const int result = RUN_ALL_TESTS();
    CoUninitialize();
    return result;
}
