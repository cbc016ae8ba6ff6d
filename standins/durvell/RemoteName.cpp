// Rules for the names by which the server knows its files.
#include "standins/durvell/RemoteName.h"

#include "standins/common/Text.h"

namespace durvell {

// Windows takes these names for devices in any folder and with any extension.
static bool IsDeviceName(std::wstring_view part) {
    std::wstring_view stem = part.substr(0, part.find(L'.'));
    while (!stem.empty() && stem.back() == L' ')
        stem.remove_suffix(1);
    for (const wchar_t* device : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$", L"CLOCK$"})
        if (standins::SameText(stem, device)) return true;
    if (stem.size() != 4) return false;
    const bool port =
        standins::SameText(stem.substr(0, 3), L"COM") || standins::SameText(stem.substr(0, 3), L"LPT");
    constexpr std::wstring_view digits = L"0123456789\u00B9\u00B2\u00B3";
    return port && digits.find(stem[3]) != std::wstring_view::npos;
}

bool IsPlainName(std::wstring_view part) {
    if (part.empty() || part.back() == L'.' || part.back() == L' ') return false;
    for (const wchar_t c : part)
        if (c < L' ' || std::wstring_view(L"\\/:*?\"<>|").find(c) != std::wstring_view::npos) return false;
    return !IsDeviceName(part);
}

std::wstring RelativePath(std::wstring_view remoteName) {
    std::wstring path(remoteName);
    for (wchar_t& c : path)
        if (c == L'/') c = L'\\';
    if (path.empty()) return path;
    for (const std::wstring& part : standins::Split(path, L'\\'))
        if (!IsPlainName(part)) return std::wstring();
    return path;
}

} // namespace durvell
