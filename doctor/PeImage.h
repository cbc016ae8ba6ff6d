// What a DLL's file says about itself, read without loading it.
#pragma once

#include <string>
#include <vector>

namespace doctor {

struct ImportedLibrary {
    std::string name;
    std::vector<std::string> functions; ///< by name only
    bool delayed = false;               ///< loaded at the first call
};

class PeImage {
public:
    /// False for a file that can't be read or is no Windows program or DLL; Problem() tells why.
    bool Read(const std::wstring& path);

    const std::wstring& Problem() const { return m_problem; }
    /// For 64-bit Windows on x64.
    bool IsX64() const { return m_machine == 0x8664; }
    const std::vector<ImportedLibrary>& Imports() const { return m_imports; }
    bool Exports(const std::string& function) const;
    /// The first exported name that begins so; empty when none does.
    std::string ExportLike(const std::string& beginning) const;

private:
    bool ReadHeaders();
    void ReadImports();
    void ReadDelayedImports();
    void ReadExports();
    std::vector<std::string> FunctionNames(size_t table) const;
    /// Null when the range is not in the file.
    const char* At(size_t rva, size_t size) const;
    template <class T>
    bool Get(size_t rva, T& value) const;
    std::string TextAt(size_t rva) const;
    /// Position of a data directory; 0 when the file has none.
    size_t Directory(size_t index) const;

    std::string m_bytes;
    std::wstring m_problem;
    unsigned m_machine = 0;
    size_t m_sections = 0, m_sectionCount = 0, m_directories = 0, m_directoryCount = 0; // offsets in the file
    std::vector<ImportedLibrary> m_imports;
    std::vector<std::string> m_exports;
};

} // namespace doctor
