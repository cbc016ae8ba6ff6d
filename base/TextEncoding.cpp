#include "base/TextEncoding.h"

#include <algorithm>

#include "base/Text.h"

namespace base {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf16OtherMark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

unsigned char Byte(char c) {
    return static_cast<unsigned char>(c);
}

bool StartsWith(std::string_view bytes, std::string_view start) {
    return bytes.substr(0, start.size()) == start;
}

bool IsValidIn(UINT codePage, std::string_view bytes) {
    std::wstring text;
    return FromCodePage(codePage, bytes, text);
}

bool IsDoubleByte(UINT codePage) {
    CPINFO info = {};
    return ::GetCPInfo(codePage, &info) && info.MaxCharSize == 2;
}

/// Whether every UTF-8 sequence has two bytes at most: such text, which is never Chinese, is as likely
/// Chinese in code page 936.
bool HasShortSequencesOnly(std::string_view bytes) {
    return std::none_of(bytes.begin(), bytes.end(), [](char c) { return Byte(c) >= 0xE0; });
}

/// Whether the bytes beyond ASCII come in pairs as code page 936 has its Chinese characters, most of them
/// common ones (lead bytes B0 to D7).
bool LooksLikeCodePage936(std::string_view bytes) {
    size_t pairs = 0;
    size_t common = 0;
    for (size_t i = 0; i < bytes.size(); ++i) {
        if (Byte(bytes[i]) < 0x80) continue;
        const unsigned char lead = Byte(bytes[i]);
        const unsigned char trail = ++i < bytes.size() ? Byte(bytes[i]) : 0;
        if (lead < 0xA1 || lead > 0xF7 || trail < 0xA1 || trail == 0xFF) return false;
        ++pairs;
        common += lead >= 0xB0 && lead <= 0xD7;
    }
    return common * 2 > pairs;
}

} // namespace

TextEncoding EncodingOf(std::string_view bytes, UINT systemCodePage) {
    if (StartsWith(bytes, kUtf16Mark)) return TextEncoding::Utf16;
    if (StartsWith(bytes, kUtf8Mark)) return TextEncoding::Utf8Mark;
    if (StartsWith(bytes, kUtf16OtherMark) || bytes.find('\0') != std::string_view::npos)
        return TextEncoding::Other;
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return Byte(c) < 0x80; }))
        return TextEncoding::Ascii;
    const bool isSystems = IsValidIn(systemCodePage, bytes);
    if (isSystems && systemCodePage == CP_UTF8) return TextEncoding::SystemCodePage;
    const bool doubleByte = IsDoubleByte(systemCodePage);
    if (IsValidIn(CP_UTF8, bytes) && !(isSystems && doubleByte && HasShortSequencesOnly(bytes)))
        return TextEncoding::Utf8;
    if (!isSystems || (!doubleByte && LooksLikeCodePage936(bytes))) return TextEncoding::Other;
    return TextEncoding::SystemCodePage;
}

std::string ToUtf16File(std::wstring_view text) {
    return std::string(kUtf16Mark)
        .append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

bool DecodeFile(std::string_view bytes, std::wstring& text) {
    switch (EncodingOf(bytes)) {
    case TextEncoding::Utf16:
        bytes.remove_prefix(kUtf16Mark.size());
        text.resize(bytes.size() / sizeof(wchar_t));
        std::copy_n(bytes.data(), text.size() * sizeof(wchar_t), reinterpret_cast<char*>(text.data()));
        return bytes.size() % sizeof(wchar_t) == 0;
    case TextEncoding::Utf8Mark:
        return FromUtf8(bytes.substr(kUtf8Mark.size()), text);
    case TextEncoding::Utf8:
        return FromUtf8(bytes, text);
    case TextEncoding::Ascii:
    case TextEncoding::SystemCodePage:
        return FromCodePage(CP_ACP, bytes, text);
    case TextEncoding::Other:
        break;
    }
    text.clear();
    return false;
}

} // namespace base
