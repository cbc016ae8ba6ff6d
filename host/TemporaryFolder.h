// A private folder that goes away with its object.
#pragma once

#include <afxwin.h>

namespace host {

class TemporaryFolder {
public:
    /// Makes a new folder under the system's temporary folder; Path() stays empty when that fails.
    TemporaryFolder();
    /// Removes the folder with everything in it.
    ~TemporaryFolder();
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;

    const CString& Path() const { return m_path; }

private:
    CString m_path;
};

} // namespace host
