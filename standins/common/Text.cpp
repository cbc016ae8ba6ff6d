#include "standins/common/Text.h"

#include <windows.h>

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

std::wstring FileBesideModule(const wchar_t* name) {
    return base::FolderPrefix(base::ModulePath(base::ThisModule())) + name;
}

std::wstring EnvironmentText(const wchar_t* name) {
    std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    if (value.empty()) return value;
    value.resize(::GetEnvironmentVariableW(name, &value[0], static_cast<DWORD>(value.size())));
    return value;
}

std::wstring IniText(const std::wstring& file, const wchar_t* section, const wchar_t* key) {
    constexpr DWORD kLongestValue = 4096;
    std::wstring value(kLongestValue, L'\0');
    value.resize(::GetPrivateProfileStringW(section, key, L"", &value[0], kLongestValue, file.c_str()));
    return value;
}

} // namespace standins
