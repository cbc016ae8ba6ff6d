// Console output.
#include <afxwin.h>

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "host/Console.h"

namespace host {

namespace {

/// Control characters, which names from outside may hold, must not break a line up.
CString Printable(CString line) {
    for (int i = 0; i < line.GetLength(); ++i) {
        if (line[i] < L' ') line.SetAt(i, L'?');
    }
    return line;
}

void Print(DWORD stream, const CString& line) {
    const HANDLE output = ::GetStdHandle(stream);
    const CString text = Printable(line) + L"\r\n";
    DWORD mode = 0;
    DWORD written = 0;
    if (::GetConsoleMode(output, &mode)) {
        ::WriteConsoleW(output, text, static_cast<DWORD>(text.GetLength()), &written, nullptr);
        return;
    }
    const std::string bytes = base::ToUtf8(text);
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

int DisplayWidth(const CString& text) {
    int width = 0;
    for (int i = 0; i < text.GetLength(); ++i) {
        width += text[i] >= 0x1100 ? 2 : 1;
    }
    return width;
}

} // namespace

void PrintLine(const CString& line) {
    Print(STD_OUTPUT_HANDLE, line);
}

void PrintError(const CString& line) {
    Print(STD_ERROR_HANDLE, line);
}

void PrintTable(const std::vector<std::vector<CString>>& rows) {
    std::vector<int> widths;
    for (const std::vector<CString>& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], DisplayWidth(row[column]));
        }
    }
    for (const std::vector<CString>& row : rows) {
        CString line;
        for (size_t column = 0; column < row.size(); ++column) {
            const int blanks = widths[column] - DisplayWidth(row[column]) + 2;
            line += row[column] + CString(L' ', blanks);
        }
        PrintLine(line.TrimRight());
    }
}

} // namespace host
