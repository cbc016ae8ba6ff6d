// The INI files of the sign tags: one section, a key for each document.
#pragma once

#include <afxwin.h>
#include <vector>

namespace varnoke {

struct TagEntry {
    CString key;
    CString value;
};

/// Leaves the file as writing the entries one after another with WritePrivateProfileStringW would leave it,
/// wholly or, with the result false, not at all. Differences: a new file, or one whose code page lacks a
/// letter of a key, becomes UTF-16; and the file as a whole is written only where it is needed, so that a key
/// more or a value of the same length costs the same in a long file. The file must not be read-only.
bool WriteTags(const CString& path, const CString& section, const std::vector<TagEntry>& entries);

/// The value of a key as GetPrivateProfileStringW gives it, empty when there is none.
CString ReadTag(const CString& path, const CString& section, const CString& key);

} // namespace varnoke
