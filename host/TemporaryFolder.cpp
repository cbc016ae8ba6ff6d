// A private temporary folder.
#include <afxwin.h>

#include "base/Paths.h"
#include "host/Paths.h"
#include "host/TemporaryFolder.h"

namespace host {

TemporaryFolder::TemporaryFolder() {
    const CString root(base::TemporaryFolderPrefix().c_str());
    if (root.IsEmpty()) return;
    // Only a folder that didn't exist before is ours to remove, so a taken name means trying the next one.
    for (DWORD attempt = 0; attempt < 100; ++attempt) {
        CString name;
        name.Format(L"varnoke-host-%lu-%lu", ::GetCurrentProcessId(), ::GetTickCount() + attempt);
        const CString path = JoinPath(root, name);
        if (::CreateDirectoryW(path, nullptr)) {
            m_path = path;
            return;
        }
    }
}

TemporaryFolder::~TemporaryFolder() {
    if (!m_path.IsEmpty()) RemoveFolder(m_path);
}

} // namespace host
