// A time limit for calls that can't be cancelled.
#pragma once

#include <windows.h>

#include "base/Owned.h"

namespace host {

/// What to do when a call doesn't return in time.
class CallExpiry {
public:
    /// On the watching thread. The thread that made the call takes no further step: a call that returns after
    /// all waits for the end of the process, which this must bring about.
    virtual void OnExpired() = 0;

protected:
    ~CallExpiry() = default;
};

/// Watches the calls of one thread.
class CallLimit {
public:
    /// No limit for 0 seconds. `expiry` is borrowed.
    CallLimit(DWORD seconds, CallExpiry& expiry);
    ~CallLimit();
    CallLimit& operator=(CallLimit&&) = delete;

    /// One call, from construction to destruction.
    class Call {
    public:
        explicit Call(CallLimit& limit) : m_limit(limit) { limit.Set(::GetTickCount64()); }
        ~Call() { m_limit.Set(0); }
        Call& operator=(Call&&) = delete;

    private:
        CallLimit& m_limit;
    };

private:
    static DWORD WINAPI ThreadMain(void* limit);
    void Set(ULONGLONG since);
    void Watch();

    const ULONGLONG m_limit; // ms
    CallExpiry& m_expiry;
    SRWLOCK m_lock = SRWLOCK_INIT;
    ULONGLONG m_since = 0; // 0: no call
    bool m_expired = false;
    base::KernelHandle m_ended;
    base::KernelHandle m_thread;
};

} // namespace host
