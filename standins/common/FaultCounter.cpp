// Counts calls so that a fault plan can make the n-th one fail.
#include "standins/common/FaultCounter.h"

#include <algorithm>

#include "base/ExclusiveLock.h"
#include "standins/common/Text.h"

namespace standins {

bool FaultCounter::CountAndTest(std::wstring_view plan, std::wstring_view operation,
                                std::wstring_view calls) {
    const base::ExclusiveLock lock(m_lock);
    if (m_plan != plan) {
        m_plan = plan;
        m_counts.clear();
    }
    const std::wstring number = std::to_wstring(++m_counts[std::wstring(operation)]);
    if (calls == L"*") return true;
    const std::vector<std::wstring> wanted = Split(calls, L'|');
    return std::find(wanted.begin(), wanted.end(), number) != wanted.end();
}

} // namespace standins
