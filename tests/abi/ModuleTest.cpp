// DLLs of the Microsoft-ABI build: loading in rounds, static objects, thread-local variables.
#include <windows.h>
#include <gtest/gtest.h>

namespace {

int g_destroyed = 0;
void NoteDestruction(int digit) {
    g_destroyed = g_destroyed * 10 + digit;
}

template <typename Function>
Function* Find(HMODULE module, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

DWORD WINAPI AddOne(void* function) {
    return reinterpret_cast<int (*)(int)>(function)(1);
}

} // namespace

TEST(Modules, ComeAndGoInRounds) {
    for (int round = 0; round < 3; ++round) {
        HMODULE probe = LoadLibraryW(L"abi-probe.dll");
        ASSERT_TRUE(probe);
        g_destroyed = 0;
        EXPECT_EQ(123, Find<int(void (*)(int))>(probe, "ProbeOrder")(NoteDestruction));
        auto* addToThreadValue = Find<int(int)>(probe, "ProbeThreadValue");
        EXPECT_EQ(17, addToThreadValue(10));
        HANDLE thread =
            CreateThread(nullptr, 0, AddOne, reinterpret_cast<void*>(addToThreadValue), 0, nullptr);
        WaitForSingleObject(thread, INFINITE);
        DWORD inThread = 0;
        GetExitCodeThread(thread, &inThread);
        CloseHandle(thread);
        EXPECT_TRUE(inThread == 8 && addToThreadValue(0) == 17);
        FreeLibrary(probe);
        EXPECT_EQ(321, g_destroyed);
        EXPECT_FALSE(GetModuleHandleW(L"abi-probe.dll"));
    }
}
