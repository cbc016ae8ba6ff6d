// Console output: wide characters to a console, UTF-8 to a pipe or a file.
#pragma once

#include <afxwin.h>

#include <vector>

namespace host {

/// Prints one line to standard output, control characters as "?". Lines reach a pipe at once.
void PrintLine(const CString& line);

/// The same to standard error.
void PrintError(const CString& line);

/// Prints rows in columns of equal display width, a Chinese character taking two places.
void PrintTable(const std::vector<std::vector<CString>>& rows);

} // namespace host
