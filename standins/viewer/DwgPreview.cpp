// The preview picture that a drawing file carries.
#include "standins/viewer/DwgPreview.h"

#include <cstring>

#include "base/Owned.h"

namespace viewer {

// Any part of a file, but nothing beyond its end.
class FileReader {
public:
    explicit FileReader(const std::wstring& path)
        : m_file(base::OwnFile(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {
        LARGE_INTEGER size = {};
        if (m_file && ::GetFileSizeEx(m_file.get(), &size)) m_size = static_cast<ULONGLONG>(size.QuadPart);
    }

    bool Read(DWORD offset, void* data, DWORD size) const {
        if (!Holds(offset, size)) return false;
        LARGE_INTEGER place = {};
        place.QuadPart = offset;
        DWORD got = 0;
        return ::SetFilePointerEx(m_file.get(), place, nullptr, FILE_BEGIN) &&
               ::ReadFile(m_file.get(), data, size, &got, nullptr) && got == size;
    }
    bool Holds(DWORD offset, DWORD size) const { return static_cast<ULONGLONG>(offset) + size <= m_size; }

private:
    base::FileHandle m_file;
    ULONGLONG m_size = 0;
};

// Places of the fields, in bytes.
constexpr DWORD kSeekerOffset = 0x0D;
constexpr DWORD kSentinelSize = 16;
constexpr DWORD kSectionHeadSize = kSentinelSize + 4 + 1;
constexpr DWORD kEntrySize = 1 + 4 + 4;

constexpr BYTE kSentinel[kSentinelSize] = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                           0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};

// Larger images are taken for damaged entries.
constexpr DWORD kLargestImage = 64 * 1024 * 1024;

// The file's byte order is that of the machine.
static DWORD NumberAt(const BYTE* bytes) {
    DWORD number = 0;
    std::memcpy(&number, bytes, sizeof(number));
    return number;
}

static bool HasDrawingVersion(const FileReader& file) {
    char version[6] = {};
    return file.Read(0, version, sizeof(version)) && std::memcmp(version, "AC10", 4) == 0 &&
           version[4] >= '0' && version[4] <= '9' && version[5] >= '0' && version[5] <= '9';
}

static std::vector<BYTE> ReadEntries(const FileReader& file) {
    BYTE seeker[4] = {}, head[kSectionHeadSize] = {};
    if (!HasDrawingVersion(file) || !file.Read(kSeekerOffset, seeker, sizeof(seeker))) return {};
    const DWORD section = NumberAt(seeker);
    if (!file.Read(section, head, sizeof(head)) || std::memcmp(head, kSentinel, kSentinelSize) != 0)
        return {};
    const DWORD length = NumberAt(head + kSentinelSize);
    const DWORD entriesSize = head[kSectionHeadSize - 1] * kEntrySize;
    // Writers differ in whether the length counts the head, so only what holds for all of them is asked.
    if (length < 1 + entriesSize || !file.Holds(section, length)) return {};
    std::vector<BYTE> entries(entriesSize);
    if (!file.Read(section + kSectionHeadSize, entries.data(), entriesSize)) return {};
    return entries;
}

static PreviewKind KindOf(BYTE code) {
    return code == 2 ? PreviewKind::Bitmap : code == 6 ? PreviewKind::Png : PreviewKind::None;
}

Preview ReadPreview(const std::wstring& path) {
    const FileReader file(path);
    const std::vector<BYTE> entries = ReadEntries(file);
    Preview preview;
    for (size_t i = 0; i < entries.size(); i += kEntrySize) {
        const PreviewKind kind = KindOf(entries[i]);
        const DWORD start = NumberAt(&entries[i + 1]);
        const DWORD size = NumberAt(&entries[i + 5]);
        // Only a PNG takes the place of a picture found before it.
        const bool wanted = kind == PreviewKind::Png
                                ? preview.kind != PreviewKind::Png
                                : kind != PreviewKind::None && preview.kind == PreviewKind::None;
        if (!wanted || size == 0 || size > kLargestImage || !file.Holds(start, size)) continue;
        std::vector<BYTE> data(size);
        if (!file.Read(start, data.data(), size)) continue;
        preview.kind = kind;
        preview.data = std::move(data);
    }
    return preview;
}

} // namespace viewer
