// What encoding a text file has, told from its bytes.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace base {

enum class TextEncoding {
    Ascii, ///< also an empty file
    Utf16, ///< with its mark, FF FE
    SystemCodePage,
    Utf8Mark, ///< UTF-8 with a byte order mark
    Utf8,     ///< without, and more than ASCII
    Other,    ///< another code page, UTF-16 without a mark or with the other byte order, no text at all
};

/// Chinese text in a code page that is not the system's is recognised on systems with a single-byte code page
/// only: among double-byte ones almost every text is valid in each.
TextEncoding EncodingOf(std::string_view bytes, UINT systemCodePage = ::GetACP());

/// Whether the system's profile functions (GetPrivateProfileStringW and the like) read such a file as it was
/// meant. A mark of UTF-8 hides the first section from them; other UTF-8 comes out as wrong letters.
constexpr bool IsProfileEncoding(TextEncoding encoding) {
    return encoding == TextEncoding::Ascii || encoding == TextEncoding::Utf16 ||
           encoding == TextEncoding::SystemCodePage;
}

/// The bytes of a UTF-16 file with this text and the mark in front.
std::string ToUtf16File(std::wstring_view text);

/// The text of a file, without its mark. False for TextEncoding::Other and for bytes that its encoding does
/// not have.
bool DecodeFile(std::string_view bytes, std::wstring& text);

} // namespace base
