// A folder of the program's own under the temporary folder.
#pragma once

#include <string>

#include "host/TemporaryFolder.h"

namespace bench {

/// Goes away with everything that the measures leave in it.
class Workspace {
public:
    /// Full path of a name in the folder; the folder's own for an empty one.
    std::wstring Path(const std::wstring& name = std::wstring()) const;
    /// Creates a subfolder, named by the count, with so many drawings, and gives its full path.
    std::wstring CreateDrawings(int count) const;
    /// "drawing<number>.dwg", the name of a drawing from 0 on.
    static std::wstring DrawingName(int number);

private:
    host::TemporaryFolder m_folder;
};

} // namespace bench
