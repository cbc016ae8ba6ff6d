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

void ProbeRound() {
    HMODULE probe = LoadLibraryW(L"abi-probe.dll");
    ASSERT_TRUE(probe != nullptr);
    g_destroyed = 0;
    EXPECT_TRUE(Find<int(void (*)(int))>(probe, "ProbeOrder")(NoteDestruction) == 123);

    auto* addToThreadValue = Find<int(int)>(probe, "ProbeThreadValue");
    EXPECT_TRUE(addToThreadValue(10) == 17);
    const auto addInThread = [](void* function) -> DWORD {
        return reinterpret_cast<int (*)(int)>(function)(1);
    };
    HANDLE thread =
        CreateThread(nullptr, 0, addInThread, reinterpret_cast<void*>(addToThreadValue), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD inThread = 0;
    GetExitCodeThread(thread, &inThread);
    CloseHandle(thread);
    EXPECT_TRUE(inThread == 8 && addToThreadValue(0) == 17);

    FreeLibrary(probe);
    EXPECT_TRUE(g_destroyed == 321);
    EXPECT_TRUE(GetModuleHandleW(L"abi-probe.dll") == nullptr);
}

} // namespace

TEST(Modules, Rounds_LeaveNothing) {
    // A copy of the library, because this program itself holds it.
    wchar_t original[MAX_PATH], copy[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"Varnoke.dll"), original, MAX_PATH);
    wcscpy(copy, original);
    wcscpy(wcsrchr(copy, L'\\') + 1, L"VarnokeRound.dll");
    EXPECT_TRUE(CopyFileW(original, copy, FALSE));
    for (int round = 0; round < 3; ++round) {
        ProbeRound();
        EXPECT_TRUE(FreeLibrary(LoadLibraryW(copy)) && GetModuleHandleW(copy) == nullptr);
    }
    DeleteFileW(copy);
}
