// Temporary folders lie in the system's temporary folder and are named after process and counter.
#include "tests/support/TempFolder.h"
#include <atomic>
#include <fstream>
#include <stdexcept>
#include <windows.h>

namespace tests {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    static std::atomic<unsigned> counter{0};
    wchar_t temp[MAX_PATH + 1];
    GetTempPathW(MAX_PATH + 1, temp);
    m_path = fs::path(temp) /
             (L"varnoke-test-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++counter));
    fs::create_directories(m_path);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    for (fs::recursive_directory_iterator entry(m_path, ignored), end; entry != end; entry.increment(ignored))
        SetFileAttributesW(entry->path().c_str(), FILE_ATTRIBUTE_NORMAL);
    fs::remove_all(m_path, ignored);
}

void WriteBytes(const fs::path& file, std::string_view bytes) {
    if (file.has_parent_path()) fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream) throw std::runtime_error("cannot write " + file.string());
}

std::string ReadBytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + ToUtf8(file.wstring()));
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

std::string ToUtf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string result(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr), 0);
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()),
                        nullptr, nullptr);
    return result;
}

std::wstring FromUtf8(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring result(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0), 0);
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()));
    return result;
}

} // namespace tests
