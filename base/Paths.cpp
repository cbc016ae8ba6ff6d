#include "base/Paths.h"

#include <string_view>

namespace base {

namespace {

/// Text from a function that takes a buffer and its size and gives the text's length, or the size that it
/// would need.
template <class Fill>
std::wstring TextOfAnyLength(Fill fill) {
    constexpr DWORD kMostCharacters = 0x10000;
    for (DWORD size = 260; size <= kMostCharacters; size *= 2) {
        std::wstring text(size, L'\0');
        const DWORD length = fill(text.data(), size);
        if (length < size) {
            text.resize(length);
            return text;
        }
    }
    return std::wstring();
}

bool IsKindOfEntry(const wchar_t* path, DWORD directory) {
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == directory;
}

} // namespace

std::wstring JoinPath(TextRef folder, TextRef name) {
    std::wstring path(folder);
    if (!path.empty() && path.back() != L'\\') path += L'\\';
    return path.append(name);
}

std::wstring FolderPrefix(TextRef path) {
    const std::wstring text(path);
    return text.substr(0, text.find_last_of(L"\\/:") + 1);
}

std::wstring WithoutBackslash(TextRef folder) {
    std::wstring text(folder);
    while (text.size() > 1 && text.back() == L'\\' && text[text.size() - 2] != L':')
        text.pop_back();
    return text;
}

std::wstring FullPath(TextRef path) {
    return TextOfAnyLength(
        [path](wchar_t* text, DWORD size) { return ::GetFullPathNameW(path, size, text, nullptr); });
}

std::wstring ModulePath(HMODULE module) {
    return TextOfAnyLength(
        [module](wchar_t* text, DWORD size) { return ::GetModuleFileNameW(module, text, size); });
}

HMODULE ThisModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&ThisModule), &module);
    return module;
}

std::wstring TemporaryFolderPrefix() {
    return TextOfAnyLength([](wchar_t* text, DWORD size) { return ::GetTempPathW(size, text); });
}

std::wstring WindowsFolder() {
    return TextOfAnyLength([](wchar_t* text, DWORD size) { return ::GetWindowsDirectoryW(text, size); });
}

std::wstring SystemFolder() {
    return TextOfAnyLength([](wchar_t* text, DWORD size) { return ::GetSystemDirectoryW(text, size); });
}

std::wstring WithVariables(TextRef text) {
    return TextOfAnyLength([text](wchar_t* expanded, DWORD size) {
        const DWORD length = ::ExpandEnvironmentStringsW(text, expanded, size);
        return length > 0 ? length - 1 : 0; // this function counts the terminator
    });
}

std::wstring FindOnPath(TextRef name) {
    const std::wstring folders = TextOfAnyLength(
        [](wchar_t* text, DWORD size) { return ::GetEnvironmentVariableW(L"PATH", text, size); });
    if (folders.empty()) return folders;
    return TextOfAnyLength([&](wchar_t* text, DWORD size) {
        return ::SearchPathW(folders.c_str(), name, nullptr, size, text, nullptr);
    });
}

bool FolderExists(TextRef path) {
    return IsKindOfEntry(path, FILE_ATTRIBUTE_DIRECTORY);
}

bool FileExists(TextRef path) {
    return IsKindOfEntry(path, 0);
}

bool IsDeviceName(TextRef name) {
    std::wstring_view stem(name);
    stem = stem.substr(0, stem.find(L'.'));
    while (!stem.empty() && stem.back() == L' ')
        stem.remove_suffix(1);
    for (const wchar_t* device : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$", L"CLOCK$"}) {
        if (SameText(stem, device)) return true;
    }
    if (stem.size() != 4) return false;
    // The superscript digits one to three count as digits here.
    constexpr std::wstring_view kPortNumbers = L"0123456789\u00B9\u00B2\u00B3";
    return (SameText(stem.substr(0, 3), L"COM") || SameText(stem.substr(0, 3), L"LPT")) &&
           kPortNumbers.find(stem[3]) != std::wstring_view::npos;
}

} // namespace base
