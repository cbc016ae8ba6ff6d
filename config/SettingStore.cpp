#include "config/SettingStore.h"

#include <windows.h>

#include <algorithm>
#include <cwctype>
#include <string>

#include "base/NamedMutex.h"
#include "base/TextEncoding.h"
#include "base/WholeFile.h"

namespace varnoke {

using base::TextRef;

namespace {

bool FitsCodePage(TextRef text) {
    if (::GetACP() == CP_UTF8) return true;
    BOOL lost = FALSE;
    ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text, -1, nullptr, 0, nullptr, &lost);
    return !lost;
}

/// The file before the value is put in: its bytes as they are wherever the profile functions can be trusted
/// with them.
std::string Prepared(const std::string& bytes, TextRef value) {
    if (bytes.empty()) return base::ToUtf16File(L"");
    const base::TextEncoding encoding = base::EncodingOf(bytes);
    const bool keep =
        base::IsProfileEncoding(encoding) && (encoding == base::TextEncoding::Utf16 || FitsCodePage(value));
    std::wstring text;
    return !keep && base::DecodeFile(bytes, text) ? base::ToUtf16File(text) : bytes;
}

/// A list of texts, each with its terminator, from a profile function that gives the number of characters, or
/// the buffer's size less 2 when that is too small.
template <class Fill>
std::wstring ProfileList(Fill fill) {
    for (DWORD size = 1024;; size *= 2) {
        std::wstring list(size, L'\0');
        const DWORD length = fill(list.data(), size);
        if (length + 2 >= size) continue;
        list.resize(length);
        return list;
    }
}

/// All that the file holds but that one value.
std::wstring OtherSettings(TextRef path, const wchar_t* section, const wchar_t* key) {
    std::wstring others;
    const std::wstring names = ProfileList(
        [&](wchar_t* list, DWORD size) { return ::GetPrivateProfileSectionNamesW(list, size, path); });
    for (const wchar_t* name = names.c_str(); *name; name += wcslen(name) + 1) {
        const std::wstring lines = ProfileList(
            [&](wchar_t* list, DWORD size) { return ::GetPrivateProfileSectionW(name, list, size, path); });
        for (const wchar_t* line = lines.c_str(); *line; line += wcslen(line) + 1) {
            const std::wstring_view lineKey(line, wcscspn(line, L"="));
            if (base::SameText(name, section) && base::SameText(lineKey, key)) continue;
            others.append(name).append(L"|").append(line).append(L"\n");
        }
    }
    return others;
}

/// A value without what the profile functions may take off when they read it.
std::wstring Bare(std::wstring text) {
    const auto falls = [](wchar_t c) { return iswspace(c) || c == L'"' || c == L'\''; };
    text.erase(std::remove_if(text.begin(), text.end(), falls), text.end());
    return text;
}

/// The profile functions call a write that was cut off by a full disk a success: what they wrote is compared
/// with what was there before.
bool PutIn(TextRef file, TextRef section, TextRef key, TextRef value) {
    const std::wstring others = OtherSettings(file, section, key);
    if (!::WritePrivateProfileStringW(section, key, value, file)) return false;
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file); // their cache, where they have one
    std::wstring stored(wcslen(value) + 2, L'\0');
    stored.resize(::GetPrivateProfileStringW(section, key, L"", stored.data(),
                                             static_cast<DWORD>(stored.size()), file));
    return Bare(stored) == Bare(std::wstring(value)) && OtherSettings(file, section, key) == others;
}

bool IsReadOnly(TextRef path) {
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

} // namespace

bool StoreSetting(TextRef path, TextRef section, TextRef key, TextRef value) {
    const base::NamedMutex turn(L"Local\\Varnoke.Settings");
    if (IsReadOnly(path)) return false;
    std::string bytes;
    const base::ReadResult read = base::ReadWholeFile(path, bytes);
    if (read != base::ReadResult::Done && read != base::ReadResult::Missing) return false;
    base::ReplacedFile file(path);
    if (file.TemporaryPath().empty()) return PutIn(path, section, key, value);
    return file.Write(Prepared(bytes, value)) && PutIn(file.TemporaryPath(), section, key, value) &&
           base::ReadWholeFile(file.TemporaryPath(), bytes) == base::ReadResult::Done && file.Write(bytes) &&
           file.Replace();
}

} // namespace varnoke
