// A file that is filled beside its target before it takes the target's place.
#include "standins/durvell/TemporaryFile.h"

#include <comdef.h>

namespace durvell {

TemporaryFile::TemporaryFile(const std::wstring& folder) {
    wchar_t path[MAX_PATH] = {};
    if (::GetTempFileNameW(folder.c_str(), L"dvl", 0, path)) m_path = path;
}

TemporaryFile::~TemporaryFile() {
    if (!m_path.empty()) ::DeleteFileW(m_path.c_str());
}

bool TemporaryFile::FillFrom(const std::wstring& source) const {
    return !m_path.empty() && ::CopyFileW(source.c_str(), m_path.c_str(), FALSE) &&
           ::SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

bool TemporaryFile::FillFrom(IXMLDOMDocument2* source) const {
    return !m_path.empty() && SUCCEEDED(source->save(_variant_t(m_path.c_str())));
}

bool TemporaryFile::MoveTo(const std::wstring& target, DWORD flags) {
    if (!::MoveFileExW(m_path.c_str(), target.c_str(), flags)) return false;
    m_path.clear();
    return true;
}

} // namespace durvell
