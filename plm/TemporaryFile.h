// A file that is written under a temporary name and then takes the place of another.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// Is deleted unless it has been moved away.
class TemporaryFile {
public:
    /// Creates an empty file in the folder (the current one for an empty text).
    explicit TemporaryFile(const CString& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Full path; empty when the file could not be created.
    const CString& Path() const { return m_path; }

    /// Replaces the target, a file on the same volume, as a whole; false when that fails and the target is as
    /// it was.
    bool MoveTo(const CString& target);

private:
    CString m_path;
};

} // namespace varnoke
