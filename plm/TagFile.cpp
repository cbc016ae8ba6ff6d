// Writing of many keys to one section of an INI file at once.
#include <afxwin.h>

#include "plm/TagFile.h"
#include "base/WholeFile.h"
#include "plm/NoCase.h"

#include <string>

namespace varnoke {

namespace {

/// The section's lines, each ended by a null character. A section is seldom longer than its file.
std::wstring ReadSection(const CString& path, const CString& section, size_t fileSize) {
    for (std::wstring text(fileSize + 16, L'\0');; text.resize(text.size() * 2)) {
        const DWORD size = static_cast<DWORD>(text.size());
        const DWORD length = ::GetPrivateProfileSectionW(section, &text[0], size, path);
        if (length + 2 < size) {
            text.resize(length);
            return text;
        }
    }
}

/// The file as the profile functions write one that holds nothing but the section.
std::string FileBytes(const CString& section, const std::wstring& text) {
    std::wstring file = L"[" + std::wstring(section) + L"]\r\n";
    for (const wchar_t* line = text.c_str(); *line; line += wcslen(line) + 1)
        file.append(line).append(L"\r\n");
    const int length = static_cast<int>(file.size());
    std::string bytes(::WideCharToMultiByte(CP_ACP, 0, file.c_str(), length, nullptr, 0, nullptr, nullptr),
                      '\0');
    ::WideCharToMultiByte(CP_ACP, 0, file.c_str(), length, &bytes[0], static_cast<int>(bytes.size()), nullptr,
                          nullptr);
    return bytes;
}

/// Whether the profile functions read the key back as it was written and tell it from others as is done here:
/// which letters beyond ASCII they take for equal is their own business.
bool IsPlainKey(const CString& key) {
    for (int i = 0; i < key.GetLength(); ++i) {
        if (key[i] > 0x7F && (::IsCharUpperW(key[i]) || ::IsCharLowerW(key[i]))) return false;
    }
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
    std::string file; // empty for a missing file
    base::ReadWholeFile(path, file);
    const std::wstring text = ReadSection(path, section, file.size());
    // A file that holds anything but the section's plain lines, such as comments, would lose that by being
    // written as a whole.
    if (!plain || (!file.empty() && file != FileBytes(section, text))) {
        for (const TagEntry& entry : entries)
            ::WritePrivateProfileStringW(section, entry.key, entry.value, path);
        return;
    }
    SectionLines lines(text);
    for (const TagEntry& entry : entries)
        lines.Set(entry);
    // The profile functions may look every key up from the first one on, which is too slow for long lists.
    if (!base::WriteWholeFile(path, FileBytes(section, lines.Text()))) {
        ::WritePrivateProfileSectionW(section, lines.Text().c_str(), path);
    }
}

} // namespace varnoke
