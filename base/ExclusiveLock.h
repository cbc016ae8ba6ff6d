// The guard of a slim lock.
#pragma once

#include <windows.h>

namespace base {

/// Holds the lock exclusively for a scope.
class ExclusiveLock {
public:
    explicit ExclusiveLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~ExclusiveLock() { ::ReleaseSRWLockExclusive(&m_lock); }
    ExclusiveLock& operator=(ExclusiveLock&&) = delete;

private:
    SRWLOCK& m_lock;
};

} // namespace base
