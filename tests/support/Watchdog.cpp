#include "tests/support/Watchdog.h"
#include <cstdio>
#include <cstdlib>
#include <windows.h>

namespace tests {

namespace {

Watchdog* g_watchdog = nullptr;

std::chrono::seconds UsualLimit() {
    const char* text = std::getenv("VARNOKE_TEST_SECONDS");
    return std::chrono::seconds(text ? std::atoi(text) : 180);
}

} // namespace

Watchdog::Watchdog() : m_limit(UsualLimit()), m_thread([this] { Watch(); }) {
    g_watchdog = this;
}

Watchdog::~Watchdog() {
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

Watchdog::Patience::Patience(std::chrono::seconds limit) {
    g_watchdog->Restart(limit);
}

Watchdog::Patience::~Patience() {
    g_watchdog->Restart(UsualLimit());
}

void Watchdog::Progress() {
    g_watchdog->Restart(g_watchdog->m_limit);
}

void Watchdog::Restart(std::chrono::seconds limit) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_limit = limit;
    ++m_run;
    m_changed.notify_all();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_test = std::string(test.test_suite_name()) + "." + test.name();
    m_started += (m_started.empty() ? "" : ":") + m_test;
    ++m_run;
    m_changed.notify_all();
}

void Watchdog::OnTestEnd(const testing::TestInfo&) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_test.clear();
    m_changed.notify_all();
}

void Watchdog::Watch() {
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_stop) {
        m_changed.wait(lock, [this] { return m_stop || !m_test.empty(); });
        const unsigned run = m_run;
        const bool ended = m_changed.wait_for(
            lock, m_limit, [this, run] { return m_stop || m_test.empty() || m_run != run; });
        if (ended) continue;
        std::fprintf(stderr, "\nwatchdog: %s did not end in time\n", m_test.c_str());
        std::fflush(stderr);
        RunTheRest();
        TerminateProcess(GetCurrentProcess(), 86);
    }
}

void Watchdog::RunTheRest() {
    std::string filter = testing::GTEST_FLAG(filter);
    filter += (filter.find('-') == std::string::npos ? "-" : ":") + m_started;
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
