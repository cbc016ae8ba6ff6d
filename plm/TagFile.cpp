#include "plm/TagFile.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/ExclusiveLock.h"
#include "base/TextEncoding.h"
#include "base/WholeFile.h"
#include "plm/TagTable.h"

namespace varnoke {

namespace {

/// What is known of a plain file from its last use.
struct KnownFile {
    std::wstring path;
    ULONGLONG size;
    FILETIME time; // of the last write
    TagTable table;
};

constexpr size_t kMostKnown = 6; // the three files of two folders
/// A write within such a part of a file is done wholly or not at all, whenever the process ends.
constexpr ULONGLONG kUndivided = 4096;

SRWLOCK g_lock = SRWLOCK_INIT;
std::vector<KnownFile> g_known;

bool Look(const CString& path, KnownFile& file) {
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &facts)) return false;
    file.size = ULONGLONG(facts.nFileSizeHigh) << 32 | facts.nFileSizeLow;
    file.time = facts.ftLastWriteTime;
    return true;
}

/// Takes a file's table from where it is kept, if the file is still the one that it was read from.
std::optional<TagTable> TakeKnown(const CString& path) {
    const base::ExclusiveLock lock(g_lock);
    const auto known = std::find_if(g_known.begin(), g_known.end(),
                                    [&path](const KnownFile& file) { return file.path == path.GetString(); });
    if (known == g_known.end()) return std::nullopt;
    KnownFile now = std::move(*known);
    g_known.erase(known);
    const ULONGLONG size = now.size;
    const FILETIME time = now.time;
    if (!Look(path, now) || now.size != size || ::CompareFileTime(&now.time, &time) != 0) return std::nullopt;
    return std::move(now.table);
}

void Keep(const CString& path, TagTable table) {
    KnownFile file = {std::wstring(path), 0, {}, std::move(table)};
    if (!Look(path, file) || file.size != file.table.Size()) return;
    const base::ExclusiveLock lock(g_lock);
    if (g_known.size() >= kMostKnown) g_known.erase(g_known.begin());
    g_known.push_back(std::move(file));
}

/// Nothing when the file is not plain. A missing file gives an empty table.
std::optional<TagTable> TableOf(const CString& path, const CString& section) {
    std::optional<TagTable> table = TakeKnown(path);
    if (table) return table;
    std::string bytes;
    const base::ReadResult read = base::ReadWholeFile(path, bytes);
    if (read != base::ReadResult::Done && read != base::ReadResult::Missing) return std::nullopt;
    table.emplace(section);
    return table->Parse(bytes) ? table : std::nullopt;
}

/// Writes the bytes into the file where that is one undivided write and the file has `size` bytes.
bool WriteInPlace(const CString& path, ULONGLONG size, ULONGLONG offset, const std::string& bytes) {
    if (offset / kUndivided != (offset + bytes.size() - 1) / kUndivided) return false;
    const base::FileHandle file = base::OwnFile(::CreateFileW(path, GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER now = {}, place = {};
    place.QuadPart = static_cast<LONGLONG>(offset);
    const DWORD count = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (!file || !::GetFileSizeEx(file.get(), &now) || ULONGLONG(now.QuadPart) != size ||
        !::SetFilePointerEx(file.get(), place, nullptr, FILE_BEGIN))
        return false;
    if (::WriteFile(file.get(), bytes.data(), count, &written, nullptr) && written == count) return true;
    place.QuadPart = static_cast<LONGLONG>(size); // a full disk: a line that was begun is taken back
    if (::SetFilePointerEx(file.get(), place, nullptr, FILE_BEGIN)) ::SetEndOfFile(file.get());
    return false;
}

/// Brings one entry into table and file; false when the file has to be written as a whole.
bool SetInPlace(const CString& path, TagTable& table, const TagEntry& entry) {
    const CString* old = table.Find(entry.key);
    const ULONGLONG offset = table.OffsetOf(entry.key), size = table.Size();
    if (size == 0 || (old && old->GetLength() != entry.value.GetLength())) return false;
    if (old && *old == entry.value) return true;
    const CString text = old ? entry.value : entry.key + L"=" + entry.value + L"\r\n";
    if (!WriteInPlace(path, size, offset, table.Encoded(std::wstring(text)))) return false;
    table.Set(entry);
    return true;
}

size_t CountLines(const std::string& bytes) {
    std::wstring text;
    base::DecodeFile(bytes, text);
    size_t lines = 0;
    for (size_t at = 0; at != text.npos; at = text.find(L'\n', at + 1))
        lines += text.find_first_not_of(L" \t\r\n", at) < text.find(L'\n', at + 1);
    return lines;
}

/// Lets the profile functions write to a copy, which then takes the file's place.
bool WriteByProfile(const CString& path, const CString& section, const std::vector<TagEntry>& entries) {
    std::string before, after;
    const base::ReadResult read = base::ReadWholeFile(path, before);
    if (read != base::ReadResult::Done && read != base::ReadResult::Missing) return false;
    TagTable encoding(section);
    encoding.Parse(before);
    std::wstring text;
    const bool fits = std::all_of(entries.begin(), entries.end(),
                                  [&](const TagEntry& entry) { return encoding.Fits(entry.key); });
    if (before.empty() || (!fits && base::DecodeFile(before, text))) before = base::ToUtf16File(text);
    base::ReplacedFile file(path);
    const wchar_t* copy = file.TemporaryPath().c_str();
    if (!file.Write(before)) return false;
    for (const TagEntry& entry : entries) {
        if (!::WritePrivateProfileStringW(section, entry.key, entry.value, copy)) return false;
    }
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, copy); // their cache, where they have one
    // They call a file that was cut off by a full disk a success.
    return base::ReadWholeFile(copy, after) == base::ReadResult::Done &&
           CountLines(after) >= CountLines(before) && file.Write(after) && file.Replace();
}

} // namespace

bool WriteTags(const CString& path, const CString& section, const std::vector<TagEntry>& entries) {
    std::optional<TagTable> table = TableOf(path, section);
    if (!table || !std::all_of(entries.begin(), entries.end(), IsPlain))
        return WriteByProfile(path, section, entries);
    const bool fits = std::all_of(entries.begin(), entries.end(),
                                  [&](const TagEntry& entry) { return table->Fits(entry.key); });
    if (!fits || entries.size() > 1 || !SetInPlace(path, *table, entries.front())) {
        if (!fits) table->BecomeUtf16();
        for (const TagEntry& entry : entries)
            table->Set(entry);
        const std::string bytes = table->Bytes();
        if (!base::WriteWholeFile(path, bytes) || !table->Parse(bytes)) return false;
    }
    Keep(path, std::move(*table));
    return true;
}

CString ReadTag(const CString& path, const CString& section, const CString& key) {
    std::optional<TagTable> table = IsPlain({key, L"0"}) ? TableOf(path, section) : std::nullopt;
    if (table) {
        const CString* found = table->Find(key);
        const CString value = found ? *found : CString();
        Keep(path, std::move(*table));
        return value;
    }
    wchar_t value[1024] = {};
    ::GetPrivateProfileStringW(section, key, L"", value, 1024, path);
    return value;
}

} // namespace varnoke
