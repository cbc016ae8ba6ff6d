// A folder of the program's own under the temporary folder.
#include <afxwin.h>

#include "bench/Workspace.h"
#include "host/Paths.h"
#include "base/Owned.h"

namespace bench {

std::wstring Workspace::Path(const std::wstring& name) const {
    return std::wstring(name.empty() ? m_folder.Path() : host::JoinPath(m_folder.Path(), name.c_str()));
}

std::wstring Workspace::CreateDrawings(int count) const {
    const std::wstring folder = Path(std::to_wstring(count));
    ::CreateDirectoryW(folder.c_str(), nullptr);
    for (int number = 0; number < count; ++number) {
        const std::wstring path = folder + L"\\" + DrawingName(number);
        base::OwnFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    return folder;
}

std::wstring Workspace::DrawingName(int number) {
    return L"drawing" + std::to_wstring(number) + L".dwg";
}

} // namespace bench
