// Module state per thread.
#include <afx.h>
#include <gtest/gtest.h>
#include <thread>

TEST(ModuleState, ScopesNestAndEndWithExceptions) {
    AFX_MODULE_STATE outer = {nullptr, GetModuleHandleW(L"user32.dll"), GetModuleHandleW(L"user32.dll")};
    AFX_MODULE_STATE inner = {nullptr, nullptr, nullptr};
    {
        AFX_MANAGE_STATE(&outer)
        CString text;
        EXPECT_TRUE(text.LoadString(2)) << "resources come from the current state";
        try {
            AFX_MANAGE_STATE(&inner)
            EXPECT_EQ(AfxGetModuleState(), &inner);
            AfxThrowUserException();
        } catch (CUserException* exception) {
            exception->Delete();
        }
        EXPECT_EQ(AfxGetModuleState(), &outer);
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
    EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(nullptr));
}

TEST(ModuleState, EachThreadHasItsOwn) {
    AFX_MODULE_STATE mine = {nullptr, nullptr, nullptr};
    AFX_MANAGE_STATE(&mine)
    AFX_MODULE_STATE* seenByOther = nullptr;
    std::thread([&] { seenByOther = AfxGetModuleState(); }).join();
    EXPECT_EQ(seenByOther, AfxGetStaticModuleState());
    EXPECT_EQ(AfxGetModuleState(), &mine);
}
