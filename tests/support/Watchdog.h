// Ends the process when one test takes too long, and says which.
#pragma once
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <gtest/gtest.h>

namespace tests {

// A modal dialog that nobody answers would otherwise hang the whole run.
// Exit code of a run that was ended: 86. Limit: 180 s a test, or VARNOKE_TEST_SECONDS.
class Watchdog : public testing::EmptyTestEventListener {
public:
    Watchdog();
    ~Watchdog() override;

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    void Watch();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_test; // empty between tests
    unsigned m_run = 0;
    bool m_stop = false;
    std::thread m_thread;
};

} // namespace tests
