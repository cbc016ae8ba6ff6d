// The hidden folder "SignData", in which the library keeps its files beside the documents.
#include <afxwin.h>

#include "plm/SignDataFolder.h"
#include "module/ModulePaths.h"

namespace varnoke {

CString SignDataFolder(const CString& folder) {
    return JoinPath(folder, L"SignData\\");
}

CString MakeSignDataFolder(const CString& folder) {
    const CString path = JoinPath(folder, L"SignData");
    ::CreateDirectoryW(path, nullptr);
    ::SetFileAttributesW(path, FILE_ATTRIBUTE_HIDDEN);
    return path + L"\\";
}

void MakeWritable(const CString& path) {
    ::SetFileAttributesW(path, FILE_ATTRIBUTE_NORMAL);
}

} // namespace varnoke
