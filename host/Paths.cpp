// Paths and folders of a run.
#include <afxwin.h>

#include "base/Owned.h"
#include "base/Paths.h"
#include "host/Paths.h"

namespace host {

namespace {

template <class Visit>
void ForEachEntry(const CString& folder, Visit visit) {
    WIN32_FIND_DATAW entry;
    const base::FindHandle search = base::OwnFind(::FindFirstFileW(JoinPath(folder, L"*"), &entry));
    if (!search) return;
    do {
        const CString name = entry.cFileName;
        if (name != L"." && name != L"..") visit(name, entry.dwFileAttributes);
    } while (::FindNextFileW(search.get(), &entry));
}

} // namespace

CString JoinPath(const CString& folder, const CString& name) {
    return CString(base::JoinPath(folder, name).c_str());
}

CString FullPath(const CString& path) {
    return CString(base::WithoutBackslash(base::FullPath(path)).c_str());
}

CString ParentFolder(const CString& path) {
    return CString(base::WithoutBackslash(base::FolderPrefix(path)).c_str());
}

bool FolderExists(const CString& path) {
    return base::FolderExists(path);
}

bool FileExists(const CString& path) {
    return base::FileExists(path);
}

bool EnsureFolder(const CString& path) {
    return ::CreateDirectoryW(path, nullptr) || FolderExists(path);
}

void RemoveFolder(const CString& path) {
    ForEachEntry(path, [&path](const CString& name, DWORD attributes) {
        const CString entry = JoinPath(path, name);
        ::SetFileAttributesW(entry, FILE_ATTRIBUTE_NORMAL);
        const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool link = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
        if (folder && !link) {
            RemoveFolder(entry);
        } else if (folder) {
            ::RemoveDirectoryW(entry);
        } else {
            ::DeleteFileW(entry);
        }
    });
    ::RemoveDirectoryW(path);
}

CString ModuleFolder(const wchar_t* module) {
    return ParentFolder(base::ModulePath(::GetModuleHandleW(module)).c_str());
}

CString SignDataFile(const CString& folder, const wchar_t* name) {
    return JoinPath(JoinPath(folder, L"SignData"), name);
}

} // namespace host
