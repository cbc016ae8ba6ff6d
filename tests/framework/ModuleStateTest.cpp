// Module state: nested, and per thread.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

DWORD WINAPI NoteState(void* state) {
    *static_cast<AFX_MODULE_STATE**>(state) = AfxGetModuleState();
    return 0;
}

} // namespace

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
        const HANDLE thread = ::CreateThread(nullptr, 0, &NoteState, &seenByOther, 0, nullptr);
        ::WaitForSingleObject(thread, INFINITE);
        ::CloseHandle(thread);
        EXPECT_EQ(seenByOther, AfxGetStaticModuleState()) << "each thread has its own";
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
}
