// The watchdog's thread waits for the running test to change within the limit.
#include "tests/support/Watchdog.h"
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <windows.h>

namespace tests {

namespace {

std::chrono::seconds Limit() {
    const char* text = std::getenv("VARNOKE_TEST_SECONDS");
    return std::chrono::seconds(text ? std::atoi(text) : 180);
}

} // namespace

Watchdog::Watchdog() : m_thread([this] { Watch(); }) {}

Watchdog::~Watchdog() {
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
    std::lock_guard<std::mutex> lock(m_mutex);
    m_test = std::string(test.test_suite_name()) + "." + test.name();
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
            lock, Limit(), [this, run] { return m_stop || m_test.empty() || m_run != run; });
        if (ended) continue;
        std::fprintf(stderr, "\nwatchdog: %s did not end in time\n", m_test.c_str());
        std::fflush(stderr);
        TerminateProcess(GetCurrentProcess(), 86);
    }
}

} // namespace tests
