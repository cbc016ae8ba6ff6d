// A file that is read as a whole.
#pragma once

#include <windows.h>

#include "base/Owned.h"

namespace varnoke {

/// An existing file, open for reading while it lives; others may read and write it meanwhile.
class InputFile {
public:
    explicit InputFile(const wchar_t* path);

    bool IsOpen() const { return m_file != nullptr; }
    /// In bytes; 0 for a file that is not open or can't be asked.
    LONGLONG Size() const;
    /// Reads the next `size` bytes; false when there are not so many.
    bool Read(void* bytes, DWORD size) const;

private:
    FileHandle m_file;
};

} // namespace varnoke
