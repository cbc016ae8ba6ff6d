// Goes on with a run in a new process when a call of this one doesn't return.
#pragma once

#include "host/BackSignRun.h"
#include "host/CallLimit.h"
#include "host/RunLock.h"

namespace host {

/// A call into a neighbour can't be cancelled. So the run is handed over to a fresh process of the same
/// command, which gives the document in hand up and goes on behind it from what is noted on the disk; this
/// process then ends with the exit code of that one.
class RunHandOver : public CallExpiry {
public:
    /// What the process before this one gave up, from the environment.
    static GivenUp Received();

    /// The lock is borrowed.
    explicit RunHandOver(RunLock& lock) : m_lock(lock) {}
    void Watch(BackSignRun& run) { m_run = &run; }

    void OnExpired() override;

private:
    RunLock& m_lock;
    BackSignRun* m_run = nullptr; // weak
};

} // namespace host
