// A lock between processes.
#pragma once

#include <windows.h>

#include "base/Owned.h"

namespace base {

/// Holds the mutex of that name for a scope; one that a killed process left is taken over. Where it can't be
/// had (another user's, or not within the patience) the scope runs without it.
class NamedMutex {
public:
    /// `patience` in milliseconds.
    explicit NamedMutex(const wchar_t* name, DWORD patience = INFINITE)
        : m_mutex(::CreateMutexW(nullptr, FALSE, name)) {
        const DWORD outcome = m_mutex ? ::WaitForSingleObject(m_mutex.get(), patience) : WAIT_FAILED;
        m_held = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
    }
    ~NamedMutex() {
        if (m_held) ::ReleaseMutex(m_mutex.get());
    }
    NamedMutex& operator=(NamedMutex&&) = delete;

private:
    KernelHandle m_mutex;
    bool m_held = false;
};

} // namespace base
