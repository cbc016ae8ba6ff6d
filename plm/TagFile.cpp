// Writing of many keys to one section of an INI file at once.
#include <afxwin.h>

#include "plm/TagFile.h"
#include "plm/NoCase.h"

#include <string>

namespace varnoke {

namespace {

/// The section's lines, each ended by a null character.
std::wstring ReadSection(const CString& path, const CString& section) {
    for (std::wstring text(32768, L'\0');; text.resize(text.size() * 2)) {
        const DWORD size = static_cast<DWORD>(text.size());
        const DWORD length = ::GetPrivateProfileSectionW(section, &text[0], size, path);
        if (length + 2 < size) {
            text.resize(length);
            return text;
        }
    }
}

/// Size in bytes of a text in the code page that the profile functions write.
size_t WrittenSize(const std::wstring& text) {
    if (text.empty()) return 0;
    return ::WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), nullptr, 0, nullptr,
                                 nullptr);
}

/// Whether the file holds nothing but the section's plain lines: only then can the section be rewritten as a
/// whole without losing comments or what else reading it doesn't show.
bool IsWholeFile(const CString& path, const CString& section, const std::wstring& text) {
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &file)) return true;
    const size_t header = WrittenSize((L"[" + section + L"]\r\n").GetString());
    size_t lines = 0;
    for (const wchar_t character : text) {
        if (!character) ++lines;
    }
    // A line end is two characters in the file and one in the text.
    return file.nFileSizeHigh == 0 && file.nFileSizeLow == header + WrittenSize(text) + lines;
}

/// Whether the profile functions read the key back as it was written.
bool IsPlainKey(const CString& key) {
    CString trimmed = key;
    trimmed.Trim();
    return trimmed == key && key.FindOneOf(L"=\"\r\n") < 0 && key[0] != L';' && key[0] != L'[';
}

/// The lines of a section, found by their keys.
class SectionLines {
public:
    explicit SectionLines(const std::wstring& text) {
        for (const wchar_t* line = text.c_str(); *line; line += wcslen(line) + 1) {
            const wchar_t* end = wcschr(line, L'=');
            Add(CString(line, static_cast<int>(end ? end - line : wcslen(line))), line);
        }
    }

    /// The first line with the key takes the value and keeps its spelling of the key.
    void Set(const TagEntry& entry) {
        const auto found = m_positions.find(entry.key);
        if (found == m_positions.end()) {
            Add(entry.key, entry.key + L"=" + entry.value);
        } else {
            m_lines[found->second] = found->first + L"=" + entry.value;
        }
    }

    std::wstring Text() const {
        std::wstring text;
        for (const CString& line : m_lines)
            text.append(line.GetString(), line.GetLength() + 1);
        return text;
    }

private:
    void Add(const CString& key, const CString& line) {
        m_positions.emplace(key, m_lines.size());
        m_lines.push_back(line);
    }

    std::vector<CString> m_lines;
    NoCaseMap<size_t> m_positions; // of the first line with the key
};

} // namespace

void WriteTagEntries(const CString& path, const CString& section, const std::vector<TagEntry>& entries) {
    bool plain = true;
    for (const TagEntry& entry : entries)
        plain = plain && IsPlainKey(entry.key);
    const std::wstring text = ReadSection(path, section);
    if (!plain || !IsWholeFile(path, section, text)) {
        for (const TagEntry& entry : entries)
            ::WritePrivateProfileStringW(section, entry.key, entry.value, path);
        return;
    }
    SectionLines lines(text);
    for (const TagEntry& entry : entries)
        lines.Set(entry);
    ::WritePrivateProfileSectionW(section, lines.Text().c_str(), path);
}

} // namespace varnoke
