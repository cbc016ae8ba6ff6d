// Writing of many keys to one section of an INI file at once.
#pragma once

#include <afxwin.h>
#include <vector>

namespace varnoke {

struct TagEntry {
    CString key;
    CString value;
};

/// Leaves the file as writing the entries one after another with WritePrivateProfileStringW would leave it,
/// but takes time in proportion to the size of the file. Keys are compared without regard to case.
void WriteTagEntries(const CString& path, const CString& section, const std::vector<TagEntry>& entries);

} // namespace varnoke
