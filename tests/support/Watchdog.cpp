#include "tests/support/Watchdog.h"
#include <atomic>
#include <cstdio>
#include <thread>
#include <windows.h>

namespace tests {

namespace {

std::atomic<ULONGLONG> g_deadline{ULLONG_MAX}; // ms; none between tests

} // namespace

Watchdog::Watchdog() {
    std::thread([this] { Watch(); }).detach();
}

void Watchdog::Allow(std::chrono::seconds limit) {
    g_deadline = GetTickCount64() + std::chrono::milliseconds(limit).count();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
    m_started += std::string(":") + test.test_suite_name() + "." + test.name();
    Allow();
}

void Watchdog::OnTestEnd(const testing::TestInfo&) {
    g_deadline = ULLONG_MAX;
}

// Behind the deadline the test's thread hangs: nobody adds to the tests started.
void Watchdog::Watch() const {
    while (GetTickCount64() < g_deadline)
        Sleep(500);
    std::fprintf(stderr, "\nwatchdog: %s did not end in time\n",
                 m_started.c_str() + m_started.rfind(':') + 1);
    std::fflush(stderr);
    RunTheRest();
    TerminateProcess(GetCurrentProcess(), 86);
}

void Watchdog::RunTheRest() const {
    std::string filter = testing::GTEST_FLAG(filter);
    filter += (filter.find('-') == std::string::npos ? "-" : "") + m_started;
    SetEnvironmentVariableA("GTEST_FILTER", filter.c_str());
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    if (CreateProcessW(program, nullptr, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
        WaitForSingleObject(process.hProcess, INFINITE);
}

} // namespace tests
