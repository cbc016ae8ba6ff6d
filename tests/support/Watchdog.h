#pragma once
#include <chrono>
#include <string>
#include <gtest/gtest.h>

namespace tests {

// Ends the process when a test takes too long, says which, and has the tests that are left run in a process
// of their own. Exit code of a run that was ended: 86.
class Watchdog : public testing::EmptyTestEventListener {
public:
    Watchdog();

    // The running test has this long from now on, unless the next call comes before. It starts with 60 s.
    static void Allow(std::chrono::seconds limit = std::chrono::seconds(60));

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    void Watch() const;
    void RunTheRest() const;

    std::string m_started; // all tests so far, separated by colons
};

} // namespace tests
