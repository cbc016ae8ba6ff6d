// The Varnoke.ini beside the library, owned by a test.
#pragma once
#include <filesystem>
#include <string>

namespace tests {

std::filesystem::path LibraryFolder();

// Starts without a file and leaves none behind.
class SettingsFile {
public:
    SettingsFile();
    ~SettingsFile();
    SettingsFile& operator=(SettingsFile&&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    void Set(const wchar_t* section, const wchar_t* key, const wchar_t* value) const;
    // The value as it is stored; "<missing>" when there is none.
    std::wstring Get(const wchar_t* section, const wchar_t* key) const;
    // Removes the file, read-only or not.
    void Remove() const;

private:
    std::filesystem::path m_path;
};

} // namespace tests
