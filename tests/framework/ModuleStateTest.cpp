// Module state per thread; a regular DLL's application object starts and ends with the DLL, and may refuse to
// be loaded.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include "tests/support/OtherThread.h"

namespace {

std::wstring Notes() {
    wchar_t notes[64] = {};
    ::GetEnvironmentVariableW(L"REGULAR_DLL_NOTES", notes, _countof(notes));
    return notes;
}

} // namespace

TEST(RegularDll, StartAndEnd_AreCalledOnceEach) {
    for (const wchar_t* mode : {L"", L"refuse", L"throw"}) {
        ::SetEnvironmentVariableW(L"REGULAR_DLL_MODE", mode);
        ::SetEnvironmentVariableW(L"REGULAR_DLL_NOTES", nullptr);
        const HMODULE hModule = ::LoadLibraryW(L"regular-dll.dll");
        EXPECT_EQ(*mode == 0, hModule != nullptr) << mode;
        if (hModule != nullptr) {
            EXPECT_EQ(L"init ", Notes());
            ::FreeLibrary(hModule);
        }
        EXPECT_EQ(L"init exit ", Notes()) << mode;
    }
}

TEST(ModuleState, ScopesNestAndEndWithExceptions) {
    // Static, as module states are: MFC counts on memory that began as zeros.
    static AFX_MODULE_STATE outer(TRUE, &AfxWndProc, _MFC_VER), inner(TRUE, &AfxWndProc, _MFC_VER);
    {
        AFX_MANAGE_STATE(&outer)
        try {
            AFX_MANAGE_STATE(&inner)
            EXPECT_EQ(AfxGetModuleState(), &inner);
            AfxThrowInvalidArgException();
        } catch (CException* exception) {
            exception->Delete();
        }
        EXPECT_EQ(AfxGetModuleState(), &outer);
        AFX_MODULE_STATE* seenByOther = nullptr;
        tests::OnOtherThread([&] { seenByOther = AfxGetModuleState(); });
        EXPECT_EQ(seenByOther, AfxGetStaticModuleState()) << "each thread has its own";
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
}
