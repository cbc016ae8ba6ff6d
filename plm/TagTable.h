// The plain form of a tag file, which is all that this library writes: one section, and nothing but lines
// "key=value" that no reader takes for anything else.
#pragma once

#include <afxwin.h>
#include <string>
#include <vector>

#include "plm/NoCase.h"
#include "plm/TagFile.h"

namespace varnoke {

/// Whether the profile functions read the entry back as it was written and tell its key from others as is
/// done here: which letters beyond ASCII they take for equal is their own business.
bool IsPlain(const TagEntry& entry);

/// The content of a plain file.
class TagTable {
public:
    explicit TagTable(const CString& section) : m_header(L"[" + section + L"]") {}

    /// False when the file is not plain; an empty one is, and counts as one in UTF-16.
    bool Parse(const std::string& bytes);

    /// Null for a key that the file has not.
    const CString* Find(const CString& key) const;
    /// The first line with the key takes the value and keeps its spelling of the key.
    void Set(const TagEntry& entry);

    /// Whether the file's encoding has all letters of the text.
    bool Fits(const CString& text) const;
    void BecomeUtf16() { m_utf16 = true; }

    std::string Bytes() const;
    std::string Encoded(const std::wstring& text) const;
    /// Where the key's value is in the file of Bytes(), in bytes; the file's size for a new key.
    ULONGLONG OffsetOf(const CString& key) const;
    ULONGLONG Size() const { return m_size; }

private:
    struct Line {
        CString key;
        CString value;
        ULONGLONG valueOffset;
    };

    void Append(const CString& key, const CString& value);

    CString m_header;
    bool m_utf16 = true;
    std::vector<Line> m_lines;
    NoCaseMap<size_t> m_positions;
    ULONGLONG m_size = 0; // bytes
};

} // namespace varnoke
