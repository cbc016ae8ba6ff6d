// The folder that plays the server.
#include "standins/durvell/Vault.h"

#include <windows.h>
#include <cstdio>

#include "base/Paths.h"
#include "base/WholeFile.h"
#include "standins/common/Text.h"
#include "standins/durvell/FaultPlan.h"

using namespace base;
using standins::IniText;

namespace durvell {

namespace {

// Whether a name is one part of a path that names an ordinary file or folder: no separator, colon, wildcard,
// quote or control character, not "." or "..", no closing dot or blank, not a device ("NUL", "com1.dwg").
bool IsPlainName(const std::wstring& part) {
    if (part.empty() || part.back() == L'.' || part.back() == L' ') return false;
    for (const wchar_t c : part)
        if (c < L' ' || std::wstring_view(L"\\/:*?\"<>|").find(c) != std::wstring_view::npos) return false;
    return !IsDeviceName(part);
}

// Turns a remote name into a path below the vault's file folder: parts with "/" or "\" between them, each of
// them a plain name. Empty for any other name.
std::wstring RelativePath(std::wstring path) {
    for (wchar_t& c : path)
        if (c == L'/') c = L'\\';
    for (const std::wstring& part : standins::Split(path, L'\\'))
        if (!IsPlainName(part)) return std::wstring();
    return path;
}

// A folder that can't be made shows when the file in it is written.
std::wstring MakeFolder(const std::wstring& parent, const std::wstring& name) {
    const std::wstring folder = JoinPath(parent, name);
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

// The bytes of the source take the target's place as a whole.
Result CopyInPlace(const std::wstring& source, const std::wstring& target) {
    std::string bytes;
    return ReadWholeFile(source, bytes) == ReadResult::Done && WriteWholeFile(target, bytes)
               ? kResultOk
               : kResultFileError;
}

// The number goes on from the records of the same second, so names never repeat and sort by arrival. Empty
// when the record could not be copied.
std::wstring CopyAsNextEntry(const std::wstring& record, const std::wstring& folder) {
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    for (int number = 1; number <= 9999; ++number) {
        wchar_t name[40];
        _snwprintf(name, 40, L"%04d%02d%02d-%02d%02d%02d-%04d.xml", now.wYear, now.wMonth, now.wDay,
                   now.wHour, now.wMinute, now.wSecond, number);
        const std::wstring entry = JoinPath(folder, name);
        if (::CopyFileW(record.c_str(), entry.c_str(), TRUE)) {
            ::SetFileAttributesW(entry.c_str(), FILE_ATTRIBUTE_NORMAL);
            return name;
        }
        if (::GetLastError() != ERROR_FILE_EXISTS) break;
    }
    return std::wstring();
}

} // namespace

Vault::Vault() : m_folder(standins::EnvironmentText(L"DURVELL_VAULT")) {
    if (m_folder.empty()) m_folder = IniText(ModuleIni(), L"Server", L"Vault");
}

bool Vault::Exists() const {
    return FolderExists(m_folder);
}

std::wstring Vault::JournalFile() const {
    return JoinPath(m_folder, L"journal.log");
}

Result Vault::Download(const std::wstring& localPath, const std::wstring& remoteName) const {
    const std::wstring relative = RelativePath(remoteName);
    if (relative.empty()) return kResultRefusedName;
    const std::wstring source = JoinPath(JoinPath(m_folder, L"files"), relative);
    return FileExists(source) ? CopyInPlace(source, localPath) : kResultNotFound;
}

Result Vault::Upload(const std::wstring& localPath, const std::wstring& remoteName) const {
    const std::wstring relative = RelativePath(remoteName);
    if (relative.empty()) return kResultRefusedName;
    if (!FileExists(localPath)) return kResultNotFound;
    const std::wstring files = MakeFolder(m_folder, L"files");
    for (size_t end = relative.find(L'\\'); end != std::wstring::npos; end = relative.find(L'\\', end + 1))
        MakeFolder(files, relative.substr(0, end));
    return CopyInPlace(localPath, JoinPath(files, relative));
}

Result Vault::FindObjectFile(const std::wstring& objectType, std::wstring* path) const {
    if (!IsPlainName(objectType)) return kResultRefusedName;
    *path = JoinPath(JoinPath(m_folder, L"objects"), objectType + L".xml");
    return FileExists(*path) ? kResultOk : kResultNotFound;
}

Result Vault::SaveRecord(const std::wstring& recordFile, const std::wstring& workFile) const {
    if (!FileExists(recordFile)) return kResultNotFound;
    const std::wstring entry = CopyAsNextEntry(recordFile, MakeFolder(m_folder, L"signlog"));
    if (entry.empty()) return kResultFileError;
    const std::wstring answer =
        L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<root><result code=\"0\" entry=\"" + entry +
        L"\"/></root>\r\n";
    return WriteWholeFile(workFile, ToUtf8(answer)) ? kResultOk : kResultFileError;
}

Result Vault::ShareInfo(wchar_t* userName, wchar_t* password, wchar_t* server) const {
    const std::wstring session = JoinPath(m_folder, L"session.ini");
    if (!FileExists(session)) return kResultNotFound;
    constexpr int kBufferSize = 1024;
    ::lstrcpynW(userName, IniText(session, L"Session", L"UserName").c_str(), kBufferSize);
    ::lstrcpynW(password, IniText(session, L"Session", L"Password").c_str(), kBufferSize);
    ::lstrcpynW(server, IniText(session, L"Session", L"Server").c_str(), kBufferSize);
    return kResultOk;
}

} // namespace durvell
