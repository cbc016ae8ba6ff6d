// Finds the file by the library's own path, as an installer would.
#include "tests/support/SettingsFile.h"
#include <windows.h>

namespace tests {

std::filesystem::path LibraryFolder() {
    wchar_t library[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"Varnoke.dll"), library, MAX_PATH);
    return std::filesystem::path(library).parent_path();
}

SettingsFile::SettingsFile() {
    m_path = LibraryFolder() / L"Varnoke.ini";
    Remove();
}

SettingsFile::~SettingsFile() {
    Remove();
}

void SettingsFile::Set(const wchar_t* section, const wchar_t* key, const wchar_t* value) const {
    WritePrivateProfileStringW(section, key, value, m_path.c_str());
}

std::wstring SettingsFile::Get(const wchar_t* section, const wchar_t* key) const {
    wchar_t value[2048];
    GetPrivateProfileStringW(section, key, L"<missing>", value, 2048, m_path.c_str());
    return value;
}

void SettingsFile::Remove() const {
    SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(m_path.c_str());
}

} // namespace tests
