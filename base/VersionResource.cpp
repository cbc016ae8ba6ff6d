#include "base/VersionResource.h"

#include <windows.h>

#include <cwchar>
#include <vector>

namespace base {

std::wstring VersionText(TextRef path, const wchar_t* name) {
    DWORD unused = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(path, &unused);
    std::vector<char> block(size);
    if (size == 0 || !::GetFileVersionInfoW(path, 0, size, block.data())) return std::wstring();
    struct Translation {
        WORD language, codePage;
    };
    void* found = nullptr;
    UINT length = 0;
    if (!::VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation", &found, &length) ||
        length < sizeof(Translation))
        return std::wstring();
    const Translation first = *static_cast<const Translation*>(found);
    wchar_t key[100] = {};
    swprintf(key, 100, L"\\StringFileInfo\\%04x%04x\\%ls", first.language, first.codePage, name);
    if (!::VerQueryValueW(block.data(), key, &found, &length) || length == 0) return std::wstring();
    return std::wstring(static_cast<const wchar_t*>(found));
}

bool IsStandIn(TextRef path) {
    return VersionText(path, L"Comments").rfind(L"Varnoke stand-in", 0) == 0;
}

} // namespace base
