// Judges the file names that a message gives to its documents.
#pragma once

#include <afxwin.h>

#include "host/Texts.h"

namespace host {

/// Why a name is no plain file name of the work folder, a Refused... text; Ready when it is one. A message
/// comes from outside: a name that leads out of the folder (path, drive, stream), to a device, to another
/// file than it says (Windows drops dots and blanks at the end) or over the library's own files there is a
/// fault.
TextId CheckDocumentName(const CString& name);

/// Order of file names, without regard to case: negative, 0 or positive.
int CompareFileNames(const CString& a, const CString& b);

} // namespace host
