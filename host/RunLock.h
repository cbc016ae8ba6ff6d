// One run per work folder.
#pragma once

#include <afxwin.h>

#include "base/Owned.h"

namespace host {

/// Held from construction to destruction. It is a file that is open without sharing: it dies with its
/// process, however that ends, and works on network drives.
class RunLock {
public:
    enum class Result { Held, Busy, Failed };

    /// Makes the library's own folder below `work` when it is missing. A run that is just ending is waited
    /// for a moment.
    explicit RunLock(const CString& work);
    RunLock& operator=(RunLock&&) = delete;

    Result State() const { return m_state; }
    /// From any thread.
    void Release() { m_file.reset(); }

private:
    base::FileHandle m_file;
    Result m_state = Result::Failed;
};

} // namespace host
