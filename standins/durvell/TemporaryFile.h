// A file that is filled beside its target before it takes the target's place.
#pragma once

#include <windows.h>
#include <msxml2.h>
#include <string>

namespace durvell {

// Deletes the file unless it was moved to its place.
class TemporaryFile {
public:
    // Makes an empty file of a unique name in the folder. When that fails, so does all that follows.
    explicit TemporaryFile(const std::wstring& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // The bytes of another file, without its attributes.
    bool FillFrom(const std::wstring& source) const;
    bool FillFrom(IXMLDOMDocument2* source) const;

    // Flags are those of MoveFileEx.
    bool MoveTo(const std::wstring& target, DWORD flags);

private:
    std::wstring m_path;
};

} // namespace durvell
