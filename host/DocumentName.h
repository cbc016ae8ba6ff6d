// Judges the file names that a message gives to its documents.
#pragma once

#include <afxwin.h>

namespace host {

enum class NameFault { None, Empty, Path, Device, Ending, Character, SignData };

/// What keeps a name from being a plain file name of the work folder. A message comes from outside: a name
/// that leads out of the folder (path, drive, stream), to a device, to another file than it says (Windows
/// drops dots and blanks at the end) or over the library's own files there is a fault.
NameFault CheckDocumentName(const CString& name);

/// Order of file names, without regard to case: negative, 0 or positive.
int CompareFileNames(const CString& a, const CString& b);

} // namespace host
