// The runtime: exceptions, large frames, local statics, containers, thread-local variables.
#include <windows.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <unordered_map>
#include <vector>
#include "tests/abi/Checks.h"

namespace {

void OnThreads(int count, DWORD(WINAPI* body)(void*), SIZE_T stackSize = 0) {
    std::vector<HANDLE> threads;
    for (int i = 0; i < count; ++i)
        threads.push_back(CreateThread(nullptr, stackSize, body, nullptr, 0, nullptr));
    for (HANDLE thread : threads) {
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
}

LONG g_constructions = 0;
LONG g_attempts = 0;
LONG g_wrongSightings = 0;

struct Slow {
    Slow() {
        Sleep(50);
        InterlockedIncrement(&g_constructions);
        ready = true;
    }
    bool ready = false;
};

struct FailsFirst {
    FailsFirst() {
        if (InterlockedIncrement(&g_attempts) == 1) throw 5;
    }
};

DWORD WINAPI UseSlowStatic(void*) {
    static Slow slow;
    if (!slow.ready) InterlockedIncrement(&g_wrongSightings);
    return 0;
}

DWORD WINAPI UseFailingStatic(void*) {
    try {
        static FailsFirst object;
    } catch (int) {
    }
    return 0;
}

void LocalStatics() {
    OnThreads(8, UseSlowStatic);
    CHECK(g_constructions == 1 && g_wrongSightings == 0);
    OnThreads(4, UseFailingStatic);
    CHECK(g_attempts == 2);
}

int g_unwound = 0;

// Each call has a frame of more than two pages with an object to unwind.
int Deep(int level, volatile char* caller) {
    struct Unwound {
        ~Unwound() { ++g_unwound; }
    } unwound;
    volatile char frame[9000];
    frame[0] = frame[8999] = caller[0];
    if (level == 0) throw std::length_error("deep");
    return Deep(level - 1, frame) + frame[8999];
}

LONG g_framesTouched = 0;

DWORD WINAPI TouchHugeFrame(void*) {
    volatile char frame[600 * 1024];
    for (size_t i = 0; i < sizeof(frame); i += 512)
        frame[i] = 1;
    InterlockedIncrement(&g_framesTouched);
    return frame[512] - 1;
}

void Exceptions() {
    volatile char start = 1;
    try {
        Deep(6, &start);
        CHECK(false);
    } catch (const std::exception& error) {
        CHECK(std::string(error.what()) == "deep");
        CHECK(g_unwound == 7);
        CHECK(typeid(error) == typeid(std::length_error) && typeid(error) != typeid(std::logic_error));
        const auto copy = static_cast<const std::length_error&>(error);
        CHECK(copy.what() == error.what());
    }
    OnThreads(2, TouchHugeFrame, 2 * 1024 * 1024);
    CHECK(g_framesTouched == 2);

    bool outOfMemory = false;
    const volatile size_t tooMuch = SIZE_MAX / 4;
    try {
        ::operator delete(::operator new(tooMuch));
    } catch (const std::bad_alloc&) {
        outOfMemory = true;
    }
    CHECK(outOfMemory && ::operator new(tooMuch, std::nothrow) == nullptr);
}

void Containers() {
    std::unordered_map<std::wstring, int> numbers;
    for (int i = 0; i < 20000; ++i)
        numbers[std::to_wstring(i)] = i;
    bool allFound = numbers.size() == 20000;
    for (int i = 0; i < 20000; ++i)
        allFound = allFound && numbers.at(std::to_wstring(i)) == i;
    CHECK(allFound && numbers.load_factor() <= numbers.max_load_factor());
    CHECK(numbers.count(L"none") == 0);

    int caught = 0;
    try {
        std::vector<int>(3).at(3);
    } catch (const std::out_of_range&) {
        ++caught;
    }
    try {
        std::function<void()>()();
    } catch (const std::bad_function_call&) {
        ++caught;
    }
    CHECK(caught == 2);
}

} // namespace

void checks::Runtime() {
    LocalStatics();
    Exceptions();
    Containers();
}
