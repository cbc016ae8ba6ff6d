// A file that is read as a whole.
#include "base/InputFile.h"

namespace varnoke {

InputFile::InputFile(const wchar_t* path)
    : m_file(OwnFile(::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {}

LONGLONG InputFile::Size() const {
    LARGE_INTEGER size = {};
    return IsOpen() && ::GetFileSizeEx(m_file.get(), &size) ? size.QuadPart : 0;
}

bool InputFile::Read(void* bytes, DWORD size) const {
    DWORD read = 0;
    return IsOpen() && ::ReadFile(m_file.get(), bytes, size, &read, nullptr) && read == size;
}

} // namespace varnoke
