// Console output.
#include <afxwin.h>

#include <string>

#include "base/Text.h"
#include "host/Console.h"

namespace host {

namespace {

bool g_status = false; // whether a line that is to be replaced is shown

bool WriteToConsole(HANDLE output, const CString& text) {
    DWORD mode = 0;
    DWORD written = 0;
    return ::GetConsoleMode(output, &mode) &&
           ::WriteConsoleW(output, text, static_cast<DWORD>(text.GetLength()), &written, nullptr);
}

void ClearStatus() {
    constexpr int kWidest = 79;
    if (g_status) WriteToConsole(::GetStdHandle(STD_ERROR_HANDLE), L"\r" + CString(L' ', kWidest) + L"\r");
    g_status = false;
}

void Print(DWORD stream, const CString& line) {
    ClearStatus();
    const HANDLE output = ::GetStdHandle(stream);
    const CString text = Printable(line) + L"\r\n";
    if (WriteToConsole(output, text)) return;
    const std::string bytes = base::ToUtf8(text);
    DWORD written = 0;
    ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace

CString Printable(CString line) {
    for (int i = 0; i < line.GetLength(); ++i) {
        if (line[i] < L' ') line.SetAt(i, L'?');
    }
    return line;
}

void PrintLine(const CString& line) {
    Print(STD_OUTPUT_HANDLE, line);
}

void PrintError(const CString& line) {
    Print(STD_ERROR_HANDLE, line);
}

void ShowStatus(const CString& line) {
    ClearStatus();
    g_status = WriteToConsole(::GetStdHandle(STD_ERROR_HANDLE), line);
}

} // namespace host
