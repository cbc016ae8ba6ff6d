// A folder of the program's own under the temporary folder.
#include <afxwin.h>

#include "bench/Workspace.h"
#include "module/Owned.h"

namespace bench {

namespace {

void DeleteTree(const std::wstring& folder) {
    WIN32_FIND_DATAW entry = {};
    {
        const varnoke::FindHandle find =
            varnoke::OwnFind(::FindFirstFileW((folder + L"\\*").c_str(), &entry));
        if (!find) return;
        do {
            const std::wstring name = entry.cFileName;
            if (name == L"." || name == L"..") continue;
            if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
                DeleteTree(folder + L"\\" + name);
            } else {
                ::DeleteFileW((folder + L"\\" + name).c_str());
            }
        } while (::FindNextFileW(find.get(), &entry));
    }
    ::RemoveDirectoryW(folder.c_str());
}

} // namespace

Workspace::Workspace() {
    wchar_t temporary[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, temporary);
    m_folder = temporary + (L"varnoke-bench-" + std::to_wstring(::GetCurrentProcessId()));
    ::CreateDirectoryW(m_folder.c_str(), nullptr);
}

Workspace::~Workspace() {
    DeleteTree(m_folder);
}

std::wstring Workspace::Path(const std::wstring& name) const {
    return name.empty() ? m_folder : m_folder + L"\\" + name;
}

std::wstring Workspace::CreateDrawings(int count) const {
    const std::wstring folder = Path(std::to_wstring(count));
    ::CreateDirectoryW(folder.c_str(), nullptr);
    for (int number = 0; number < count; ++number) {
        const std::wstring path = folder + L"\\drawing" + std::to_wstring(number) + L".dwg";
        varnoke::OwnFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    return folder;
}

} // namespace bench
