#include "doctor/Registration.h"

#include <windows.h>

#include "base/Owned.h"
#include "base/Paths.h"

namespace doctor {

namespace {

/// The default value of a key below HKEY_CLASSES_ROOT, environment variables filled in; false without the
/// key.
bool ReadDefault(const std::wstring& key, std::wstring& value) {
    HKEY opened = nullptr;
    if (::RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &opened) !=
        ERROR_SUCCESS)
        return false;
    const base::RegistryKey owner(opened);
    wchar_t text[1024] = {};
    DWORD size = sizeof text;
    value.clear();
    if (::RegGetValueW(opened, nullptr, nullptr, RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND, nullptr,
                       text, &size) != ERROR_SUCCESS)
        return true;
    wchar_t expanded[1024] = {};
    const DWORD length = ::ExpandEnvironmentStringsW(text, expanded, 1024);
    value = length > 0 && length <= 1024 ? expanded : text;
    return true;
}

/// A file as the loader finds it: without quotes, a bare name in the system's folder.
std::wstring ServerFile(std::wstring file) {
    if (file.size() > 1 && file.front() == L'"') file = file.substr(1, file.find(L'"', 1) - 1);
    if (file.empty() || file.find(L'\\') != std::wstring::npos) return file;
    wchar_t folder[MAX_PATH] = {};
    ::GetSystemDirectoryW(folder, MAX_PATH);
    return base::JoinPath(folder, file);
}

} // namespace

std::wstring ClassOfProgId(const std::wstring& progId) {
    std::wstring classId;
    ReadDefault(progId + L"\\CLSID", classId);
    return classId;
}

Registered FindClass(const std::wstring& classId) {
    Registered found;
    std::wstring file, other;
    found.exists = ReadDefault(L"CLSID\\" + classId, other);
    if (ReadDefault(L"CLSID\\" + classId + L"\\InprocServer32", file)) found.file = ServerFile(file);
    if (found.file.empty()) found.only32 = ReadDefault(L"Wow6432Node\\CLSID\\" + classId, other);
    return found;
}

} // namespace doctor
