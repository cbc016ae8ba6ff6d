// The folder that a long run works in.
#include "tests/soak/Workplace.h"

#include <windows.h>
#include <psapi.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "base/Owned.h"
#include "base/Paths.h"
#include "base/WholeFile.h"

namespace soak {

std::wstring Path(const wchar_t* name) {
    return base::FullPath(name);
}

std::wstring ProgramFolder() {
    return base::FolderPrefix(base::ModulePath(nullptr));
}

std::string ReadAll(const std::wstring& path) {
    std::string bytes;
    base::ReadWholeFile(path, bytes);
    return bytes;
}

void WriteAll(const std::wstring& path, const std::string& bytes) {
    if (!base::WriteWholeFile(path, bytes)) Stop("cannot write %ls", path.c_str());
}

void DeleteAll(const std::wstring& folder, const wchar_t* pattern) {
    WIN32_FIND_DATAW found = {};
    const base::FindHandle find = base::OwnFind(::FindFirstFileW((folder + pattern).c_str(), &found));
    if (!find) return;
    do {
        ::DeleteFileW((folder + found.cFileName).c_str());
    } while (::FindNextFileW(find.get(), &found));
}

std::wstring FromUtf8(const std::string& bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, nullptr, 0), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

size_t CommittedBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

void Stop(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputc('\n', stderr);
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 1);
    std::abort();
}

} // namespace soak
