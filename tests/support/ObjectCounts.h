// How many of the system's objects the process holds, for tests that would see a leak.
#pragma once
#include <windows.h>

namespace tests {

struct ObjectCounts {
    int m_windows = 0; // of this thread
    int m_gdi = 0;
    int m_kernel = 0;
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
    EnumThreadWindows(GetCurrentThreadId(), &CountTree, reinterpret_cast<LPARAM>(&counts.m_windows));
    counts.m_gdi = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    const bool uncounted = counts.m_gdi == 0;
    for (UINT_PTR index = 1; uncounted && index <= 0xffff; ++index)
        counts.m_gdi += GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0;
    DWORD flags = 0;
    for (UINT_PTR handle = 4; handle < 0x8000; handle += 4)
        counts.m_kernel += GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags) != 0;
    return counts;
}

} // namespace tests
