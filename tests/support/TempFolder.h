// A folder of a test's own, and whole-file reading and writing.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>

namespace tests {

// Deletes itself with all it holds, whatever attributes were set inside.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder& operator=(TempFolder&&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    // Without a trailing backslash; a copy that exported functions may take as wchar_t*.
    std::wstring Text() const { return m_path.wstring(); }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

// Creates missing folders on the way. Bytes are written as they stand.
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);
// Throws std::runtime_error when the file cannot be read.
std::string ReadBytes(const std::filesystem::path& file);
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

} // namespace tests
