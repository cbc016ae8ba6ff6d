#include "base/Text.h"

#include <cwchar>

namespace base {

bool SameText(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && ::CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                                          static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

std::wstring JsonText(std::wstring_view text) {
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') {
            quoted += L'\\';
            quoted += c;
        } else if (c < L' ') {
            wchar_t escaped[8] = {};
            swprintf(escaped, 8, L"\\u%04x", static_cast<unsigned>(c));
            quoted += escaped;
        } else {
            quoted += c;
        }
    }
    return quoted + L"\"";
}

std::string ToUtf8(TextRef text) {
    const int length = static_cast<int>(wcslen(text));
    std::string bytes(::WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, length, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                          nullptr);
    return bytes;
}

bool FromCodePage(UINT codePage, std::string_view bytes, std::wstring& text) {
    const int size = static_cast<int>(bytes.size());
    text.resize(::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0));
    return size == 0 || ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(),
                                              static_cast<int>(text.size())) > 0;
}

} // namespace base
