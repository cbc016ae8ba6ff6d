#include "module/Trace.h"

#include <afxwin.h>

#include <cstdlib>
#include <cstdio>
#include <string>

#include "base/ExclusiveLock.h"
#include "base/NamedMutex.h"
#include "base/Owned.h"
#include "base/Paths.h"
#include "module/ModulePaths.h"

namespace varnoke {

namespace {

constexpr wchar_t kSection[] = L"Trace";
constexpr LONGLONG kKilobyte = 1024;
constexpr int kDefaultSizeLimit = 1024; // in kilobytes
constexpr DWORD kPatience = 1000;       // milliseconds for another process's line

struct Target {
    SRWLOCK lock = SRWLOCK_INIT;
    std::wstring path;
    LONGLONG sizeLimit = 0; // in bytes
};

Target target;
volatile LONG level = 0; // a TraceLevel

std::wstring Variable(const wchar_t* name) {
    std::wstring value(::GetEnvironmentVariableW(name, nullptr, 0), L'\0');
    value.resize(::GetEnvironmentVariableW(name, &value[0], static_cast<DWORD>(value.size())));
    return value;
}

/// The file that the settings name, a relative one beside them; by default one in the temporary folder.
std::wstring TargetPath(const CString& settings) {
    const std::wstring named = Variable(L"VARNOKE_TRACE_FILE");
    if (!named.empty()) return named;
    constexpr DWORD kSize = 1023;
    wchar_t stored[kSize] = {};
    ::GetPrivateProfileStringW(kSection, L"File", L"", stored, kSize, settings);
    if (!stored[0]) return base::TemporaryFolderPrefix() + L"Varnoke.log";
    const std::wstring path = base::WithVariables(stored);
    const bool relative = path.find(L':') == std::wstring::npos && path[0] != L'\\' && path[0] != L'/';
    return relative ? base::FolderPrefix(settings) + path : path;
}

std::wstring Stamp() {
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    wchar_t stamp[80] = {};
    swprintf(stamp, 80, L"%04d-%02d-%02d %02d:%02d:%02d.%03d %lu:%lu ", now.wYear, now.wMonth, now.wDay,
             now.wHour, now.wMinute, now.wSecond, now.wMilliseconds, ::GetCurrentProcessId(),
             ::GetCurrentThreadId());
    return stamp;
}

LONGLONG SizeOf(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    ::GetFileAttributesExW(path, GetFileExInfoStandard, &data);
    return (static_cast<LONGLONG>(data.nFileSizeHigh) << 32) + data.nFileSizeLow;
}

/// Opened for each line, so that the file may be moved or deleted at any time.
void Append(const std::wstring& path, LONGLONG sizeLimit, const std::string& bytes) {
    const base::NamedMutex turn(L"Local\\Varnoke.Trace", kPatience);
    if (SizeOf(path.c_str()) + static_cast<LONGLONG>(bytes.size()) > sizeLimit)
        ::MoveFileExW(path.c_str(), (path + L".old").c_str(), MOVEFILE_REPLACE_EXISTING);
    const base::FileHandle file = base::OwnFile(
        ::CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (file) ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

} // namespace

void ConfigureTrace() noexcept {
    try {
        const CString settings = SettingsFilePath();
        const std::wstring named = Variable(L"VARNOKE_TRACE");
        const int wanted = named.empty()
                               ? static_cast<int>(::GetPrivateProfileIntW(kSection, L"Level", 0, settings))
                               : _wtoi(named.c_str());
        if (wanted > 0) {
            const int limit = static_cast<int>(
                ::GetPrivateProfileIntW(kSection, L"SizeLimit", kDefaultSizeLimit, settings));
            const base::ExclusiveLock lock(target.lock);
            target.path = TargetPath(settings);
            target.sizeLimit = kKilobyte * (limit > 0 ? limit : kDefaultSizeLimit);
        }
        ::InterlockedExchange(&level, wanted);
    } catch (...) {
        ::InterlockedExchange(&level, 0);
    }
}

bool IsTracing(TraceLevel wanted) noexcept {
    return level >= static_cast<LONG>(wanted) || ::IsDebuggerPresent();
}

void WriteTrace(base::TextRef text) noexcept {
    try {
        std::wstring line = Stamp() + std::wstring(text);
        for (wchar_t& c : line) {
            if (c == L'\r' || c == L'\n') c = L' ';
        }
        line += L"\r\n";
        if (::IsDebuggerPresent()) ::OutputDebugStringW(line.c_str());
        if (level <= 0) return;
        const base::ExclusiveLock lock(target.lock);
        Append(target.path, target.sizeLimit, base::ToUtf8(line));
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell
    }
}

} // namespace varnoke
