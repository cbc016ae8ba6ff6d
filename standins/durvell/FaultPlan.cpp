// Faults on demand, read from an INI file at each call.
#include "standins/durvell/FaultPlan.h"

#include <windows.h>
#include <algorithm>
#include <cwchar>

#include "base/Paths.h"
#include "standins/common/FaultCounter.h"
#include "standins/common/Text.h"

namespace durvell {

namespace {

standins::FaultCounter g_calls;

} // namespace

std::wstring ModuleIni() {
    return standins::FileBesideModule(L"Durvell.ini");
}

FaultPlan::FaultPlan(const std::wstring& vaultFolder) : m_file(standins::EnvironmentText(L"DURVELL_FAULT")) {
    if (m_file.empty()) m_file = base::JoinPath(vaultFolder, L"Durvell.ini");
    if (!base::FileExists(m_file)) m_file = ModuleIni();
}

std::wstring FaultPlan::Value(const std::wstring& key) const {
    return standins::IniText(m_file, L"Fault", key.c_str());
}

bool FaultPlan::Fails(const wchar_t* operation) const {
    return g_calls.CountAndTest(Value(L"Run"), operation, Value(std::wstring(operation) + L"Fail"));
}

bool FaultPlan::TransferFails(const wchar_t* operation, const std::wstring& remoteName) const {
    constexpr unsigned long kLongestDelay = 60000;
    ::Sleep(std::min(std::wcstoul(Value(L"DelayMs").c_str(), nullptr, 10), kLongestDelay));
    if (Fails(operation)) return true;
    for (const std::wstring& name : standins::Split(Value(std::wstring(operation) + L"FailNames"), L'|'))
        if (base::SameText(name, remoteName)) return true;
    return false;
}

} // namespace durvell
