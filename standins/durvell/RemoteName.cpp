// Rules for the names by which the server knows its files.
#include "standins/durvell/RemoteName.h"

#include "base/Paths.h"
#include "standins/common/Text.h"

namespace durvell {

bool IsPlainName(std::wstring_view part) {
    if (part.empty() || part.back() == L'.' || part.back() == L' ') return false;
    for (const wchar_t c : part)
        if (c < L' ' || std::wstring_view(L"\\/:*?\"<>|").find(c) != std::wstring_view::npos) return false;
    return !base::IsDeviceName(std::wstring(part));
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
