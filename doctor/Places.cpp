#include "doctor/Places.h"

#include <windows.h>

#include <vector>

#include "base/Paths.h"
#include "base/Text.h"

namespace doctor {

namespace {

/// A text of the file's version resource; empty without it.
std::wstring VersionText(const std::wstring& path, const wchar_t* name) {
    DWORD unused = 0;
    const DWORD size = ::GetFileVersionInfoSizeW(path.c_str(), &unused);
    std::vector<char> block(size);
    if (size == 0 || !::GetFileVersionInfoW(path.c_str(), 0, size, block.data())) return std::wstring();
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

} // namespace

std::wstring Locate(const std::wstring& name, const Options& options) {
    for (const std::wstring& folder : {options.library, options.host, base::SystemFolder()}) {
        const std::wstring path = base::JoinPath(folder, name);
        if (base::FileExists(path)) return path;
    }
    return base::FindOnPath(name);
}

bool IsSystemFile(const std::wstring& path) {
    const std::wstring folder = base::WindowsFolder();
    return !folder.empty() && base::SameText(path.substr(0, folder.size()), folder);
}

std::wstring FileVersion(const std::wstring& path) {
    return VersionText(path, L"FileVersion");
}

bool IsStandIn(const std::wstring& path) {
    return VersionText(path, L"Comments").rfind(L"Varnoke stand-in", 0) == 0;
}

std::wstring Described(const std::wstring& path) {
    const std::wstring version = FileVersion(path);
    return version.empty() ? path : path + L" " + version;
}

std::wstring Wide(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

} // namespace doctor
