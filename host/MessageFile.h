// Reads a start-sign message file into the text that the library takes.
#pragma once

#include <afxwin.h>

namespace host {

/// The message as UTF-16 text without byte order mark. The encoding is told by that mark, else by the XML
/// declaration (UTF-8, UTF-16, GBK and its relatives, US-ASCII, ISO-8859-1), else it is UTF-8. False, after
/// an error line, for a file that can't be read or whose bytes don't fit its encoding.
bool ReadMessageFile(const CString& path, CString& message);

} // namespace host
