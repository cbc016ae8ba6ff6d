// The runtime: exceptions, large frames, local statics, containers, thread-local variables.
#include <windows.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <unordered_map>

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

int g_unwound = 0;

int Deep(int level) {
    struct Unwound {
        ~Unwound() { ++g_unwound; }
    } unwound;
    if (level == 0) throw std::length_error("deep");
    return Deep(level - 1) + 1;
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

TEST(Runtime, Exceptions_UnwindEveryFrame) {
    EXPECT_THROW(Deep(6), const std::length_error&);
    EXPECT_EQ(7, g_unwound);
}

TEST(Runtime, Containers_GrowAndFind) {
    std::unordered_map<std::wstring, int> numbers;
    for (int i = 0; i < 20000; ++i)
        numbers[std::to_wstring(i)] = i;
    int found = 0;
    for (int i = 0; i < 20000; ++i)
        found += numbers[std::to_wstring(i)] == i;
    EXPECT_TRUE(found == 20000 && numbers.load_factor() <= numbers.max_load_factor());
}
