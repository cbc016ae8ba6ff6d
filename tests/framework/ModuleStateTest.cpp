// Module state per thread, and run-time classes.
#include <afx.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

class Plain : public CObject {
    DECLARE_DYNAMIC(Plain)
};
class Derived : public Plain {
    DECLARE_DYNAMIC(Derived)
};
IMPLEMENT_DYNAMIC(Plain, CObject)
IMPLEMENT_DYNAMIC(Derived, Plain)

} // namespace

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

TEST(RuntimeClass, KnowsItsBases) {
    const Derived object;
    EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, "Derived");
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(Derived)) && object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(Plain().IsKindOf(RUNTIME_CLASS(Derived)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CException)));
}
