// The folder that a long run works in.
#include "tests/soak/Workplace.h"

#include <windows.h>
#include <psapi.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace soak {

std::wstring Path(const wchar_t* name) {
    std::wstring folder(::GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder + L"\\" + name;
}

std::wstring ProgramFolder() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH - 1);
    const std::wstring text = path;
    return text.substr(0, text.rfind(L'\\') + 1);
}

std::string ReadAll(const std::wstring& path) {
    std::string bytes;
    if (FILE* file = _wfopen(path.c_str(), L"rb")) {
        char buffer[65536];
        for (size_t count; (count = std::fread(buffer, 1, sizeof buffer, file)) > 0;) {
            bytes.append(buffer, count);
        }
        std::fclose(file);
    }
    return bytes;
}

void WriteAll(const std::wstring& path, const std::string& bytes) {
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    FILE* file = _wfopen(path.c_str(), L"wb");
    if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
        Stop("cannot write %ls", path.c_str());
    }
    std::fclose(file);
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
