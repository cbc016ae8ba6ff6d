// The run-time support that the compiler asks for: large frames, local statics.
#include <windows.h>
#include <gtest/gtest.h>

namespace {

LONG g_attempts = 0;
LONG g_wrongSightings = 0;

struct FailsFirst {
    FailsFirst() {
        if (InterlockedIncrement(&g_attempts) == 1) throw 5;
        Sleep(50);
        ready = true;
    }
    bool ready = false;
};

DWORD WINAPI UseStatic(void*) {
    try {
        static FailsFirst object;
        if (!object.ready) InterlockedIncrement(&g_wrongSightings);
    } catch (int) {
    }
    return 0;
}

// Touches nothing but the frame's two ends itself. The compiler must not know which elements these are.
__attribute__((noinline)) int UseFrameEnds() {
    volatile char frame[600 * 1024];
    const volatile size_t ends[] = {0, sizeof(frame) - 1};
    for (const volatile size_t& end : ends)
        frame[end] = 1;
    return frame[ends[0]];
}

LONG CALLBACK PassGuard(EXCEPTION_POINTERS* info) {
    return info->ExceptionRecord->ExceptionCode == STATUS_GUARD_PAGE_VIOLATION ? EXCEPTION_CONTINUE_EXECUTION
                                                                               : EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

// The first attempt throws, one of the others succeeds while the rest waits for it.
TEST(Runtime, LocalStatics_AreConstructedOnce) {
    HANDLE threads[8];
    for (HANDLE& thread : threads)
        thread = CreateThread(nullptr, 0, UseStatic, nullptr, 0, nullptr);
    WaitForMultipleObjects(8, threads, TRUE, INFINITE);
    for (HANDLE thread : threads)
        CloseHandle(thread);
    EXPECT_TRUE(g_attempts == 2 && g_wrongSightings == 0);
}

// A guard in the middle of the frame goes only when the start of the function touches its page.
TEST(Runtime, LargeFrame_TouchesEveryPage) {
    char* middle = reinterpret_cast<char*>(&middle) - 300 * 1024;
    MEMORY_BASIC_INFORMATION page = {};
    DWORD before = 0;
    EXPECT_TRUE(UseFrameEnds() == 1);
    EXPECT_TRUE(VirtualProtect(middle, 1, PAGE_READWRITE | PAGE_GUARD, &before));
    void* handler = AddVectoredExceptionHandler(1, PassGuard);
    EXPECT_TRUE(UseFrameEnds() == 1);
    RemoveVectoredExceptionHandler(handler);
    EXPECT_TRUE(VirtualQuery(middle, &page, sizeof(page)) != 0 && (page.Protect & PAGE_GUARD) == 0);
}
