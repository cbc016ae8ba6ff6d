// Exclusive use of a sign record, and the announcement of a change to its end.
#pragma once

#include <afxwin.h>
#include <string>

#include "base/Owned.h"

namespace varnoke {

/// A file becomes its own first `offset` bytes followed by `bytes`.
struct TailChange {
    ULONGLONG offset = 0;
    std::string bytes;
};

/// Makes the change, on the disk when it returns. A failure, such as a full disk, leaves or restores the old
/// end, which must be given; false with `torn` set when even that failed. Others may read the file meanwhile.
bool ChangeTail(HANDLE file, const TailChange& change, const std::string& oldTail, bool& torn);

/// Keeps other processes and threads from using the record of a folder, by the file DocSignRecord.lock, which
/// is there just as long. A killed process leaves that file; it then stops nobody, and holds the change that
/// may have been cut off.
class RecordLock {
public:
    /// Waits up to ten seconds for another user.
    explicit RecordLock(const CString& signDataFolder);
    ~RecordLock();
    RecordLock& operator=(RecordLock&&) = delete;

    bool IsHeld() const { return m_file != nullptr; }
    /// Whether somebody else held it all the time; otherwise there is no folder that could be written to.
    bool IsBusy() const { return m_busy; }

    /// Writes the change down, to be finished by the next user if this process comes to its end now.
    bool Announce(const TailChange& change);
    /// The change that a killed user announced, if it announced one.
    bool ReadAnnounced(TailChange& change) const;
    /// Leaves the announced change to the next user.
    void Leave() { m_leave = true; }

private:
    base::FileHandle m_file;
    bool m_busy = false;
    bool m_leave = false;
};

} // namespace varnoke
