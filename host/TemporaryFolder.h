// A private folder that goes away with its object.
#pragma once

#include <afxwin.h>

namespace host {

class CTemporaryFolder {
public:
    /// Makes a new folder under the system's temporary folder; Path() stays empty when that fails.
    CTemporaryFolder();
    /// Removes the folder with everything in it.
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    const CString& Path() const { return m_strPath; }

private:
    CString m_strPath;
};

} // namespace host
