// The folder that plays the server.
#include "standins/durvell/Vault.h"

#include <windows.h>
#include <cstdio>

#include "standins/common/Text.h"
#include "standins/durvell/FaultPlan.h"
#include "standins/durvell/RemoteName.h"
#include "standins/durvell/TemporaryFile.h"

using namespace standins;

namespace durvell {

// A folder that can't be made shows when the file in it is written.
static std::wstring MakeFolder(const std::wstring& parent, const std::wstring& name) {
    const std::wstring folder = JoinPath(parent, name);
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
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
    const std::wstring answer =
        L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<root><result code=\"0\" entry=\"" + entry +
        L"\"/></root>\r\n";
    return WriteTextFile(workFile, answer) ? ResultOk : ResultFileError;
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
