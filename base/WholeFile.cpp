#include "base/WholeFile.h"

#include <cstdio>

#include "base/Paths.h"

namespace base {

namespace {

bool IsMissing(DWORD error) {
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME;
}

std::wstring TemporaryName() {
    static LONG lastNumber = static_cast<LONG>(::GetTickCount());
    wchar_t name[40] = {};
    swprintf(name, 40, L"~varnoke-%lx-%lx.tmp", ::GetCurrentProcessId(), ::InterlockedIncrement(&lastNumber));
    return name;
}

/// Whether the process that a temporary file is named after still runs and had begun when it was written:
/// numbers of processes are given out again.
bool IsOwned(const WIN32_FIND_DATAW& file) {
    unsigned long process = 0;
    if (swscanf(file.cFileName, L"~varnoke-%lx-", &process) != 1) return true;
    const KernelHandle owner(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE, process));
    FILETIME began = {};
    FILETIME ignored = {};
    return owner && ::WaitForSingleObject(owner.get(), 0) == WAIT_TIMEOUT &&
           ::GetProcessTimes(owner.get(), &began, &ignored, &ignored, &ignored) &&
           ::CompareFileTime(&began, &file.ftLastWriteTime) <= 0;
}

FileHandle OpenTemporary(const std::wstring& path, DWORD creation) {
    return OwnFile(
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// Size of an open file in bytes; -1 when it can't be asked.
LONGLONG SizeOf(const FileHandle& file) {
    LARGE_INTEGER size = {};
    return ::GetFileSizeEx(file.get(), &size) ? size.QuadPart : -1;
}

bool Move(const std::wstring& source, const std::wstring& target) {
    return ::MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

/// Moves a file over another one, read-only or not. That one is only looked at when it is in the way: asking
/// for a file that isn't there may cost a look through its whole folder.
bool MoveOver(const std::wstring& source, const std::wstring& target) {
    if (Move(source, target)) return true;
    const DWORD error = ::GetLastError();
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY)) {
        ::SetFileAttributesW(target.c_str(), attributes & ~FILE_ATTRIBUTE_READONLY);
        if (Move(source, target)) return true;
        ::SetFileAttributesW(target.c_str(), attributes);
    }
    ::SetLastError(error);
    return false;
}

} // namespace

FileHandle OpenForReading(TextRef path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return OwnFile(
        ::CreateFileW(path, GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

ReadResult ReadWholeFile(TextRef path, std::string& bytes, LONGLONG sizeLimit) {
    bytes.clear();
    const FileHandle file = OpenForReading(path);
    if (!file) return IsMissing(::GetLastError()) ? ReadResult::Missing : ReadResult::Unreadable;
    const LONGLONG size = SizeOf(file);
    if (size < 0) return ReadResult::Unreadable;
    if (size > sizeLimit) return ReadResult::TooLarge;
    bytes.resize(static_cast<size_t>(size));
    DWORD read = 0;
    if (::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(size), &read, nullptr) && read == size)
        return ReadResult::Done;
    bytes.clear();
    return ReadResult::Unreadable;
}

bool WriteWholeFile(TextRef path, const std::string& bytes) {
    ReplacedFile file(path);
    return file.Write(bytes) && file.Replace();
}

void RemoveLeftFiles(TextRef folderPrefix) {
    WIN32_FIND_DATAW file = {};
    const std::wstring prefix(folderPrefix);
    const FindHandle find = OwnFind(::FindFirstFileW((prefix + L"~varnoke-*.tmp").c_str(), &file));
    if (!find) return;
    do {
        if (!IsOwned(file)) ::DeleteFileW((prefix + file.cFileName).c_str());
    } while (::FindNextFileW(find.get(), &file));
}

ReplacedFile::ReplacedFile(TextRef target) : m_target(target) {
    const std::wstring prefix = FolderPrefix(target);
    constexpr int kMostAttempts = 100;
    for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
        const std::wstring path = prefix + TemporaryName();
        if (OpenTemporary(path, CREATE_NEW)) {
            m_path = path;
            return;
        }
        if (::GetLastError() != ERROR_FILE_EXISTS) return;
    }
}

ReplacedFile::~ReplacedFile() {
    if (!m_path.empty()) ::DeleteFileW(m_path.c_str());
}

bool ReplacedFile::Write(const std::string& bytes) {
    if (m_path.empty()) return false;
    const FileHandle file = OpenTemporary(m_path, TRUNCATE_EXISTING);
    m_size = static_cast<LONGLONG>(bytes.size());
    const DWORD size = static_cast<DWORD>(m_size);
    DWORD written = 0;
    return file && m_size <= kLargestFile && ::WriteFile(file.get(), bytes.data(), size, &written, nullptr) &&
           written == size;
}

bool ReplacedFile::Replace() {
    if (m_path.empty()) return false;
    {
        const FileHandle file = OpenTemporary(m_path, OPEN_EXISTING);
        if (!file || !::FlushFileBuffers(file.get())) return false;
        const LONGLONG size = SizeOf(file);
        if (m_size < 0 ? size <= 0 : size != m_size) return false;
    }
    if (!MoveOver(m_path, m_target)) return false;
    m_path.clear();
    return true;
}

} // namespace base
