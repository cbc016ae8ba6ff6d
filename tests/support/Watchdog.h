#pragma once
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <gtest/gtest.h>

namespace tests {

// Ends the process when a test takes too long, says which, and has the tests that are left run in a process
// of their own. Exit code of a run that was ended: 86. Limit: 180 s a test, or VARNOKE_TEST_SECONDS.
class Watchdog : public testing::EmptyTestEventListener {
public:
    Watchdog();
    ~Watchdog() override;

    // While it lives, the limit is this long from the last call of Progress.
    class Patience {
    public:
        explicit Patience(std::chrono::seconds limit);
        ~Patience();
        Patience(const Patience&) = delete;
    };
    static void Progress();

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    void Restart(std::chrono::seconds limit);
    void Watch();
    void RunTheRest();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_test;    // empty between tests
    std::string m_started; // all tests so far, separated by colons
    std::chrono::seconds m_limit;
    unsigned m_run = 0;
    bool m_stop = false;
    std::thread m_thread;
};

} // namespace tests
