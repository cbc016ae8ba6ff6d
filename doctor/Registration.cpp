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
    constexpr DWORD kTexts = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    DWORD size = 0; // bytes, the terminator among them
    value.clear();
    if (::RegGetValueW(opened, nullptr, nullptr, kTexts, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return true;
    std::wstring text(size / sizeof(wchar_t) + 1, L'\0');
    if (::RegGetValueW(opened, nullptr, nullptr, kTexts, nullptr, text.data(), &size) != ERROR_SUCCESS)
        return true;
    value = base::WithVariables(text.c_str());
    return true;
}

/// A file as the loader finds it: without quotes, a bare name in the system's folder.
std::wstring ServerFile(std::wstring file) {
    if (file.size() > 1 && file.front() == L'"') file = file.substr(1, file.find(L'"', 1) - 1);
    if (file.empty() || file.find(L'\\') != std::wstring::npos) return file;
    return base::JoinPath(base::SystemFolder(), file);
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
