// How many of the system's objects the process holds, for tests that would see a leak.
#pragma once
#include <gtest/gtest.h>
#include <windows.h>
#include "tests/support/MemoryUse.h"

namespace tests {

struct ObjectCounts {
    int windows = 0; // of this thread
    int gdi = 0;
    int kernel = 0;
};

inline BOOL CALLBACK CountWindow(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

inline BOOL CALLBACK CountTree(HWND window, LPARAM count) {
    EnumChildWindows(window, &CountWindow, count);
    return CountWindow(window, count);
}

// Asks for each possible handle, since Wine does not keep the counts that the system offers.
inline ObjectCounts CountObjects() {
    ObjectCounts counts;
    EnumThreadWindows(GetCurrentThreadId(), &CountTree, reinterpret_cast<LPARAM>(&counts.windows));
    counts.gdi = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    const bool uncounted = counts.gdi == 0;
    for (UINT_PTR index = 1; uncounted && index <= 0xffff; ++index)
        counts.gdi += GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0;
    DWORD flags = 0;
    for (UINT_PTR handle = 4; handle < 0x8000; handle += 4)
        counts.kernel += GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags) != 0;
    return counts;
}

inline bool operator<=(const ObjectCounts& a, const ObjectCounts& b) {
    return a.windows <= b.windows && a.gdi <= b.gdi && a.kernel <= b.kernel;
}

// Runs a dialog often and expects neither objects nor memory to remain, but for less than so many bytes a
// run. The system takes a handle or a page of its own now and then; a leak shows in every batch of runs, such
// an accident does not.
template <class Body>
void ExpectNothingLeft(int rounds, long long bytes, Body run) {
    ObjectCounts before, after;
    long long growth = 0;
    for (int batch = 0; batch < 5; ++batch) { // the heap grows to what it needs
        before = CountObjects();
        growth = MemoryGrowth(rounds, run);
        after = CountObjects();
        if (after <= before && growth < rounds * bytes) return;
    }
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_EQ(before.gdi, after.gdi);
    EXPECT_EQ(before.kernel, after.kernel);
    EXPECT_LT(growth, rounds * bytes);
}

} // namespace tests
