// Counts calls so that a fault plan can make the n-th one fail.
#pragma once

#include <windows.h>
#include <string>
#include <string_view>
#include <unordered_map>

namespace standins {

// Counters are per process. They start again at 1 when the plan's text differs from that of the call before.
// May be used from several threads.
class FaultCounter {
public:
    // Counts a call of the operation and says whether the plan wants it to fail. `calls` is empty (none
    // fails), "*" (all fail) or call numbers with "|" between them ("2|5").
    bool CountAndTest(std::wstring_view plan, std::wstring_view operation, std::wstring_view calls);

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::wstring m_plan;
    std::unordered_map<std::wstring, long> m_counts;
};

} // namespace standins
