// The hidden folder "SignData", in which the library keeps its files beside the documents.
#include <afxwin.h>

#include "plm/SignDataFolder.h"

#include <string>

#include "base/ExclusiveLock.h"
#include "base/WholeFile.h"
#include "module/ModulePaths.h"

namespace varnoke {

namespace {

SRWLOCK g_lock = SRWLOCK_INIT;
std::wstring g_lastFolder;

/// Others than killed runs leave no files, so that looking again each time would find nothing.
void RemoveLeftFilesOnce(const CString& folder) {
    const base::ExclusiveLock lock(g_lock);
    if (g_lastFolder == folder.GetString()) return;
    g_lastFolder = folder;
    base::RemoveLeftFiles(folder);
}

} // namespace

CString SignDataFolder(const CString& folder) {
    return JoinPath(folder, L"SignData\\");
}

CString MakeSignDataFolder(const CString& folder) {
    const CString path = JoinPath(folder, L"SignData");
    ::CreateDirectoryW(path, nullptr);
    ::SetFileAttributesW(path, FILE_ATTRIBUTE_HIDDEN);
    RemoveLeftFilesOnce(path + L"\\");
    return path + L"\\";
}

void MakeWritable(const CString& path) {
    ::SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
}

} // namespace varnoke
