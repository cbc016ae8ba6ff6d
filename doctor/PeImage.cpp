#include "doctor/PeImage.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

#include "base/WholeFile.h"
#include "doctor/Report.h"

namespace doctor {

namespace {

constexpr LONGLONG kLargestImage = 256 << 20;
constexpr size_t kMostEntries = 0x10000; // a damaged file must not keep us for long

template <class T>
bool GetAt(const std::string& bytes, size_t offset, T& value) {
    if (offset > bytes.size() || bytes.size() - offset < sizeof(T)) return false;
    memcpy(&value, bytes.data() + offset, sizeof(T));
    return true;
}

} // namespace

bool PeImage::Read(const std::wstring& path) {
    m_imports.clear();
    m_exports.clear();
    m_machine = 0;
    if (base::ReadWholeFile(path, m_bytes, kLargestImage) != base::ReadResult::Done) {
        m_problem = ErrorText(::GetLastError());
        return false;
    }
    if (!ReadHeaders()) {
        m_problem = path;
        return false;
    }
    if (IsX64()) {
        ReadImports();
        ReadDelayedImports();
        ReadExports();
    }
    return true;
}

bool PeImage::ReadHeaders() {
    IMAGE_DOS_HEADER dos;
    DWORD signature = 0;
    IMAGE_FILE_HEADER header;
    if (!GetAt(m_bytes, 0, dos) || dos.e_magic != IMAGE_DOS_SIGNATURE || dos.e_lfanew < 0) return false;
    const size_t start = static_cast<size_t>(dos.e_lfanew);
    if (!GetAt(m_bytes, start, signature) || signature != IMAGE_NT_SIGNATURE) return false;
    if (!GetAt(m_bytes, start + sizeof signature, header)) return false;
    m_machine = header.Machine;
    const size_t optional = start + sizeof signature + sizeof header;
    m_sections = optional + header.SizeOfOptionalHeader;
    m_sectionCount = header.NumberOfSections;
    m_directories = optional + offsetof(IMAGE_OPTIONAL_HEADER64, DataDirectory);
    DWORD count = 0;
    if (IsX64() && !GetAt(m_bytes, optional + offsetof(IMAGE_OPTIONAL_HEADER64, NumberOfRvaAndSizes), count))
        return false;
    m_directoryCount = count;
    return true;
}

const char* PeImage::At(size_t rva, size_t size) const {
    for (size_t i = 0; i < m_sectionCount; ++i) {
        IMAGE_SECTION_HEADER section;
        if (!GetAt(m_bytes, m_sections + i * sizeof section, section)) return nullptr;
        if (rva < section.VirtualAddress || rva - section.VirtualAddress >= section.SizeOfRawData) continue;
        const size_t offset = rva - section.VirtualAddress + section.PointerToRawData;
        const bool inside = offset <= m_bytes.size() && m_bytes.size() - offset >= size;
        return inside ? m_bytes.data() + offset : nullptr;
    }
    return nullptr;
}

template <class T>
bool PeImage::Get(size_t rva, T& value) const {
    const char* bytes = At(rva, sizeof(T));
    if (bytes) memcpy(&value, bytes, sizeof(T));
    return bytes != nullptr;
}

std::string PeImage::TextAt(size_t rva) const {
    const char* text = At(rva, 1);
    if (!text) return std::string();
    const std::string_view rest(text, static_cast<size_t>(m_bytes.data() + m_bytes.size() - text));
    const size_t end = rest.find('\0');
    return end == std::string_view::npos ? std::string() : std::string(rest.substr(0, end));
}

size_t PeImage::Directory(size_t index) const {
    IMAGE_DATA_DIRECTORY directory = {};
    if (index < m_directoryCount) GetAt(m_bytes, m_directories + index * sizeof directory, directory);
    return directory.VirtualAddress;
}

std::vector<std::string> PeImage::FunctionNames(size_t table) const {
    std::vector<std::string> names;
    ULONGLONG entry = 0;
    for (; names.size() < kMostEntries && Get(table, entry) && entry != 0; table += sizeof entry) {
        if (!IMAGE_SNAP_BY_ORDINAL64(entry))
            names.push_back(TextAt(static_cast<size_t>(entry) + offsetof(IMAGE_IMPORT_BY_NAME, Name)));
    }
    return names;
}

void PeImage::ReadImports() {
    IMAGE_IMPORT_DESCRIPTOR library;
    size_t at = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
    for (; at && m_imports.size() < kMostEntries && Get(at, library) && library.Name; at += sizeof library) {
        const size_t table = library.OriginalFirstThunk ? library.OriginalFirstThunk : library.FirstThunk;
        m_imports.push_back({TextAt(library.Name), FunctionNames(table), false});
    }
}

void PeImage::ReadDelayedImports() {
    IMAGE_DELAYLOAD_DESCRIPTOR library;
    size_t at = Directory(IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT);
    for (; at && m_imports.size() < kMostEntries && Get(at, library) && library.DllNameRVA;
         at += sizeof library) {
        m_imports.push_back({TextAt(library.DllNameRVA), FunctionNames(library.ImportNameTableRVA), true});
    }
}

void PeImage::ReadExports() {
    IMAGE_EXPORT_DIRECTORY table;
    const size_t at = Directory(IMAGE_DIRECTORY_ENTRY_EXPORT);
    if (!at || !Get(at, table)) return;
    for (size_t i = 0; i < table.NumberOfNames && i < kMostEntries; ++i) {
        DWORD name = 0;
        if (Get(table.AddressOfNames + i * sizeof name, name)) m_exports.push_back(TextAt(name));
    }
    std::sort(m_exports.begin(), m_exports.end());
}

bool PeImage::Exports(const std::string& function) const {
    return std::binary_search(m_exports.begin(), m_exports.end(), function);
}

std::string PeImage::ExportLike(const std::string& beginning) const {
    const auto found = std::lower_bound(m_exports.begin(), m_exports.end(), beginning);
    const bool fits = found != m_exports.end() && found->compare(0, beginning.size(), beginning) == 0;
    return fits ? *found : std::string();
}

} // namespace doctor
