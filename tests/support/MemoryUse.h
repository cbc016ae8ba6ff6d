// Memory of the process, for tests that would see a leak.
#pragma once
#include <windows.h>
#include <psapi.h>

namespace tests {

// Bytes that the process has committed.
inline long long Committed() {
    PROCESS_MEMORY_COUNTERS counters = {};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long long>(counters.PagefileUsage);
}

// By how many bytes the process's committed memory has grown after `rounds` more calls of `body`. The first
// calls are not counted: they fill caches.
template <class Body>
long long MemoryGrowth(int rounds, Body body) {
    for (int round = 0; round < 3; ++round)
        body();
    const long long before = Committed();
    for (int round = 0; round < rounds; ++round)
        body();
    return Committed() - before;
}

} // namespace tests
