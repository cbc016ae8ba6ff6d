// Text, path and settings helpers of the stand-ins.
#include "standins/common/Text.h"

#include <windows.h>

#include "base/Owned.h"
#include "base/Paths.h"

namespace standins {

std::vector<std::wstring> Split(std::wstring_view text, wchar_t separator) {
    std::vector<std::wstring> parts;
    while (!text.empty()) {
        const size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::wstring_view::npos) break;
        text.remove_prefix(end + 1);
        if (text.empty()) parts.emplace_back();
    }
    return parts;
}

std::wstring JoinPath(std::wstring_view folder, std::wstring_view name) {
    std::wstring path(folder);
    if (!path.empty() && path.back() != L'\\') path += L'\\';
    path.append(name);
    return path;
}

std::wstring ParentFolder(const std::wstring& path) {
    std::wstring folder = path.substr(0, path.find_last_of(L"\\/:") + 1);
    if (folder.empty() || folder.back() == L':') folder += L'.';
    return folder;
}

bool FileExists(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool WriteTextFile(const std::wstring& path, std::wstring_view text) {
    const base::FileHandle file = base::OwnFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr,
                                                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    const std::string utf8 = base::ToUtf8(std::wstring(text));
    DWORD written = 0;
    return file && ::WriteFile(file.get(), utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr) &&
           written == utf8.size() && ::FlushFileBuffers(file.get());
}

std::wstring ModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            ::GetModuleFileNameW(base::ThisModule(), &path[0], static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring ModuleFolder() {
    return ParentFolder(ModulePath());
}

std::wstring EnvironmentText(const wchar_t* name) {
    std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    if (value.empty()) return value;
    value.resize(::GetEnvironmentVariableW(name, &value[0], static_cast<DWORD>(value.size())));
    return value;
}

std::wstring IniText(const std::wstring& file, const wchar_t* section, const wchar_t* key) {
    constexpr DWORD longestValue = 4096;
    std::wstring value(longestValue, L'\0');
    value.resize(::GetPrivateProfileStringW(section, key, L"", &value[0], longestValue, file.c_str()));
    return value;
}

} // namespace standins
