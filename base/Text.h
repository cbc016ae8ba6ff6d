// Texts without a framework's string type.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace base {

/// A null-terminated text as an argument, whatever string type the caller has. It lives as long as the call;
/// a null pointer counts as an empty text.
class TextRef {
public:
    template <class Text, class = std::enable_if_t<std::is_convertible_v<const Text&, const wchar_t*>>>
    TextRef(const Text& text) : TextRef(static_cast<const wchar_t*>(text), nullptr) {}
    TextRef(const std::wstring& text) : m_text(text.c_str()) {}

    operator const wchar_t*() const { return m_text; }

private:
    TextRef(const wchar_t* text, std::nullptr_t) : m_text(text ? text : L"") {}

    const wchar_t* m_text;
};

/// Equality as the file system has it for names: ordinal, without regard to case.
bool SameText(std::wstring_view a, std::wstring_view b);

/// The text as a JSON string, quotation marks included.
std::wstring JsonText(std::wstring_view text);

/// UTF-8 without a byte order mark.
std::string ToUtf8(TextRef text);

/// False for bytes that the code page does not have; a byte order mark stays as a character.
bool FromCodePage(UINT codePage, std::string_view bytes, std::wstring& text);
inline bool FromUtf8(std::string_view bytes, std::wstring& text) {
    return FromCodePage(CP_UTF8, bytes, text);
}

} // namespace base
