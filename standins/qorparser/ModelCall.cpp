// Counting of model operations for planned faults.
#include "standins/qorparser/ModelCall.h"

#include <cwchar>

#include "standins/common/Text.h"

namespace {

// Operations left until the one that fails; 0 when none will.
int g_callsToFault =
    static_cast<int>(std::wcstol(standins::EnvironmentText(L"QOR_FAULT").c_str(), nullptr, 10));

} // namespace

void qorparser::PlanFault(int n) {
    g_callsToFault = n;
}

bool qorparser::FaultDue() {
    return g_callsToFault > 0 && --g_callsToFault == 0;
}
