// A file that is written under a temporary name and then takes the place of another.
#include "plm/TemporaryFile.h"

namespace varnoke {

TemporaryFile::TemporaryFile(const CString& folder) {
    wchar_t path[MAX_PATH] = {};
    if (::GetTempFileNameW(folder.IsEmpty() ? L"." : folder, L"var", 0, path)) m_path = path;
}

TemporaryFile::~TemporaryFile() {
    if (!m_path.IsEmpty()) ::DeleteFileW(m_path);
}

bool TemporaryFile::MoveTo(const CString& target) {
    if (!::MoveFileExW(m_path, target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return false;
    m_path.Empty();
    return true;
}

} // namespace varnoke
