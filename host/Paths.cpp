// Paths and folders of a run.
#include <afxwin.h>

#include "base/Owned.h"
#include "host/Paths.h"

namespace host {

namespace {

constexpr int kMaxPath = 32768;

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

bool IsKindOfEntry(const CString& path, bool folder) {
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) == folder;
}

} // namespace

CString JoinPath(const CString& folder, const CString& name) {
    return folder.Right(1) == L"\\" ? folder + name : folder + L"\\" + name;
}

CString FullPath(const CString& path) {
    CString full;
    const DWORD length = ::GetFullPathNameW(path, kMaxPath, full.GetBuffer(kMaxPath), nullptr);
    full.ReleaseBuffer(length < static_cast<DWORD>(kMaxPath) ? static_cast<int>(length) : 0);
    while (full.GetLength() > 3 && full.Right(1) == L"\\") {
        full = full.Left(full.GetLength() - 1);
    }
    return full;
}

CString ParentFolder(const CString& path) {
    const int slash = path.ReverseFind(L'\\');
    return slash < 0 ? CString() : path.Left(slash);
}

bool FolderExists(const CString& path) {
    return IsKindOfEntry(path, true);
}

bool FileExists(const CString& path) {
    return IsKindOfEntry(path, false);
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
    CString path;
    const DWORD length = ::GetModuleFileNameW(::GetModuleHandleW(module), path.GetBuffer(kMaxPath), kMaxPath);
    path.ReleaseBuffer(static_cast<int>(length));
    return ParentFolder(path);
}

CString SignDataFile(const CString& folder, const wchar_t* name) {
    return JoinPath(JoinPath(folder, L"SignData"), name);
}

CString SignRecordFile(const CString& folder) {
    return SignDataFile(folder, L"DocSignRecord.xml");
}

} // namespace host
