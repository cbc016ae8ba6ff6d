// Module state per thread.
#include <afx.h>
#include <gtest/gtest.h>
#include <thread>

TEST(ModuleState, ScopesNestAndEndWithExceptions) {
    AFX_MODULE_STATE outer = {}, inner = {};
    {
        AFX_MANAGE_STATE(&outer)
        try {
            AFX_MANAGE_STATE(&inner)
            EXPECT_EQ(AfxGetModuleState(), &inner);
            AfxThrowUserException();
        } catch (CUserException* exception) {
            exception->Delete();
        }
        EXPECT_EQ(AfxGetModuleState(), &outer);
        AFX_MODULE_STATE* seenByOther = nullptr;
        std::thread([&] { seenByOther = AfxGetModuleState(); }).join();
        EXPECT_EQ(seenByOther, AfxGetStaticModuleState()) << "each thread has its own";
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
}
