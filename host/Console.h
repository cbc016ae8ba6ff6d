// Console output: wide characters to a console, UTF-8 to a pipe or a file.
#pragma once

#include <afxwin.h>

namespace host {

/// The line with "?" for control characters, which names from outside may hold.
CString Printable(CString line);

/// Prints one line to standard output. Lines reach a pipe at once.
void PrintLine(const CString& line);

/// The same to standard error.
void PrintError(const CString& line);

/// Shows a line on the console that the next one replaces; nothing where errors go to a pipe or a file.
void ShowStatus(const CString& line);

} // namespace host
