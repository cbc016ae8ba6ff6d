// The folder that plays the server.
#include "standins/durvell/Vault.h"

#include <windows.h>
#include <cstdio>

#include "standins/common/Owned.h"
#include "standins/common/Text.h"
#include "standins/durvell/FaultPlan.h"
#include "standins/durvell/RemoteName.h"

using namespace standins;

namespace durvell {

// Deletes a temporary file unless it was moved to its place.
class TemporaryFile {
public:
    // Makes an empty file of a unique name in the folder.
    explicit TemporaryFile(const std::wstring& folder) {
        wchar_t path[MAX_PATH] = {};
        if (::GetTempFileNameW(folder.c_str(), L"dvl", 0, path)) m_path = path;
    }
    ~TemporaryFile() {
        if (!m_path.empty()) ::DeleteFileW(m_path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::wstring& Path() const { return m_path; }

    bool FillFrom(const std::wstring& source) const {
        return !m_path.empty() && ::CopyFileW(source.c_str(), m_path.c_str(), FALSE) &&
               ::SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    bool MoveTo(const std::wstring& target, DWORD flags) {
        if (!::MoveFileExW(m_path.c_str(), target.c_str(), flags)) return false;
        m_path.clear();
        return true;
    }

private:
    std::wstring m_path;
};

static std::wstring ParentFolder(const std::wstring& path) {
    return path.substr(0, path.rfind(L'\\'));
}

// A folder that can't be made shows when the file in it is written.
static std::wstring MakeFolder(const std::wstring& parent, const std::wstring& name) {
    const std::wstring folder = JoinPath(parent, name);
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

static Result WriteText(const std::wstring& path, const std::wstring& text) {
    const UniqueFile file = OpenedFile(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                                     FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return ResultFileError;
    const std::string utf8 = ToUtf8(text);
    DWORD written = 0;
    const BOOL ok = ::WriteFile(file.get(), utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr);
    return ok && written == utf8.size() ? ResultOk : ResultFileError;
}

Vault::Vault() : m_folder(EnvironmentText(L"DURVELL_VAULT")) {
    if (m_folder.empty()) m_folder = IniText(ModuleIni(), L"Server", L"Vault");
}

bool Vault::Exists() const {
    const DWORD attributes = ::GetFileAttributesW(m_folder.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::wstring Vault::JournalFile() const {
    return JoinPath(m_folder, L"journal.log");
}

Result Vault::Download(const std::wstring& localPath, const std::wstring& remoteName) const {
    const std::wstring relative = RelativePath(remoteName);
    if (relative.empty()) return ResultRefusedName;
    const std::wstring source = JoinPath(JoinPath(m_folder, L"files"), relative);
    if (!FileExists(source)) return ResultNotFound;
    TemporaryFile temporary(ParentFolder(localPath));
    const bool placed = temporary.FillFrom(source) && temporary.MoveTo(localPath, MOVEFILE_REPLACE_EXISTING);
    return placed ? ResultOk : ResultFileError;
}

Result Vault::Upload(const std::wstring& localPath, const std::wstring& remoteName) const {
    const std::wstring relative = RelativePath(remoteName);
    if (relative.empty()) return ResultRefusedName;
    if (!FileExists(localPath)) return ResultNotFound;
    TemporaryFile temporary(MakeFolder(m_folder, L"incoming"));
    if (!temporary.FillFrom(localPath)) return ResultFileError;
    const std::wstring files = MakeFolder(m_folder, L"files");
    for (size_t end = relative.find(L'\\'); end != std::wstring::npos; end = relative.find(L'\\', end + 1))
        MakeFolder(files, relative.substr(0, end));
    return temporary.MoveTo(JoinPath(files, relative), MOVEFILE_REPLACE_EXISTING) ? ResultOk
                                                                                  : ResultFileError;
}

Result Vault::FindObjectFile(const std::wstring& objectType, std::wstring* path) const {
    if (!IsPlainName(objectType)) return ResultRefusedName;
    *path = JoinPath(JoinPath(m_folder, L"objects"), objectType + L".xml");
    return FileExists(*path) ? ResultOk : ResultNotFound;
}

// The number goes on from the records of the same second, so names never repeat and sort by arrival.
static bool MoveToNextEntry(TemporaryFile& record, const std::wstring& folder, std::wstring* entry) {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    for (int number = 1; number <= 9999; ++number) {
        wchar_t name[40];
        _snwprintf(name, 40, L"%04d%02d%02d-%02d%02d%02d-%04d.xml", now.wYear, now.wMonth, now.wDay,
                   now.wHour, now.wMinute, now.wSecond, number);
        if (record.MoveTo(JoinPath(folder, name), 0)) {
            *entry = name;
            return true;
        }
        if (::GetLastError() != ERROR_ALREADY_EXISTS && ::GetLastError() != ERROR_FILE_EXISTS) return false;
    }
    return false;
}

Result Vault::SaveRecord(const std::wstring& recordFile, const std::wstring& workFile) const {
    if (!FileExists(recordFile)) return ResultNotFound;
    TemporaryFile record(MakeFolder(m_folder, L"incoming"));
    const std::wstring signLog = MakeFolder(m_folder, L"signlog");
    std::wstring entry;
    if (!record.FillFrom(recordFile) || !MoveToNextEntry(record, signLog, &entry)) return ResultFileError;
    return WriteText(workFile,
                     L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<root><result code=\"0\" entry=\"" +
                         entry + L"\"/></root>\r\n");
}

Result Vault::ShareInfo(wchar_t* userName, wchar_t* password, wchar_t* server) const {
    const std::wstring session = JoinPath(m_folder, L"session.ini");
    if (!FileExists(session)) return ResultNotFound;
    constexpr int bufferSize = 1024;
    ::lstrcpynW(userName, IniText(session, L"Session", L"UserName").c_str(), bufferSize);
    ::lstrcpynW(password, IniText(session, L"Session", L"Password").c_str(), bufferSize);
    ::lstrcpynW(server, IniText(session, L"Session", L"Server").c_str(), bufferSize);
    return ResultOk;
}

} // namespace durvell
