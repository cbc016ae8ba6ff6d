// A log of calls that a test can read while it is being written.
#include "standins/common/Journal.h"

#include <windows.h>
#include <cstdio>

#include "base/Owned.h"
#include "base/Text.h"

namespace standins {

namespace {

std::wstring TimeText() {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    wchar_t text[32];
    _snwprintf(text, 32, L"%04d-%02d-%02d %02d:%02d:%02d.%03d", now.wYear, now.wMonth, now.wDay, now.wHour,
               now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}

} // namespace

void AppendJournal(const std::wstring& file, std::wstring_view call,
                   const std::vector<std::wstring>& arguments, long result) {
    std::wstring line = TimeText();
    line.append(1, L'\t').append(call);
    for (const std::wstring& argument : arguments) {
        line += L'\t';
        for (const wchar_t c : argument)
            line += c < L' ' ? L' ' : c;
    }
    line.append(L"\t=> ").append(std::to_wstring(result)).append(L"\r\n");

    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const base::FileHandle journal = base::OwnFile(::CreateFileW(
        file.c_str(), FILE_APPEND_DATA, kShareAll, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!journal) return;
    const std::string utf8 = base::ToUtf8(line);
    DWORD written = 0;
    ::WriteFile(journal.get(), utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr);
}

} // namespace standins
