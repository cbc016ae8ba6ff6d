// Faults on demand, read from an INI file at each call.
#include "standins/durvell/FaultPlan.h"

#include <windows.h>
#include <algorithm>
#include <cwchar>

#include "standins/common/FaultCounter.h"
#include "standins/common/Text.h"

using namespace standins;

namespace durvell {

static FaultCounter g_calls;

std::wstring ModuleIni() {
    return ModuleFolder() + L"Durvell.ini";
}

FaultPlan::FaultPlan(const std::wstring& vaultFolder) : m_file(EnvironmentText(L"DURVELL_FAULT")) {
    if (m_file.empty()) m_file = JoinPath(vaultFolder, L"Durvell.ini");
    if (!FileExists(m_file)) m_file = ModuleIni();
}

std::wstring FaultPlan::Value(const std::wstring& key) const {
    return IniText(m_file, L"Fault", key.c_str());
}

bool FaultPlan::Fails(const wchar_t* operation) const {
    return g_calls.CountAndTest(Value(L"Run"), operation, Value(std::wstring(operation) + L"Fail"));
}

bool FaultPlan::TransferFails(const wchar_t* operation, const std::wstring& remoteName) const {
    constexpr unsigned long longestDelay = 60000;
    ::Sleep(std::min(std::wcstoul(Value(L"DelayMs").c_str(), nullptr, 10), longestDelay));
    if (Fails(operation)) return true;
    for (const std::wstring& name : Split(Value(std::wstring(operation) + L"FailNames"), L'|'))
        if (base::SameText(name, remoteName)) return true;
    return false;
}

} // namespace durvell
