// Memory of the process, for tests that would see a leak.
#pragma once
#include <windows.h>
#include <psapi.h>

namespace tests {

// By how many bytes the process's committed memory has grown after `rounds` more calls of `body`. The first
// calls are not counted: they fill caches.
template <class Body>
long long MemoryGrowth(int rounds, Body body) {
    const auto committed = [] {
        PROCESS_MEMORY_COUNTERS counters = {};
        K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
        return static_cast<long long>(counters.PagefileUsage);
    };
    for (int round = 0; round < 3; ++round)
        body();
    const long long before = committed();
    for (int round = 0; round < rounds; ++round)
        body();
    return committed() - before;
}

} // namespace tests
