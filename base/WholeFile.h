// Files that are read and written as a whole.
#pragma once

#include <windows.h>

#include <string>

#include "base/Owned.h"
#include "base/Text.h"

namespace base {

enum class ReadResult { Done, Missing, Unreadable, TooLarge };

constexpr LONGLONG kLargestFile = 0x7FFFFFFF;

/// Opens an existing file for reading while others may read, write, move and delete it; empty on failure.
FileHandle OpenForReading(TextRef path);

/// Gives the file's bytes. Missing: neither the file nor anything else is there. Unreadable: not a file,
/// denied, or cut off while it was read. `sizeLimit` in bytes, at most kLargestFile. Without success `bytes`
/// is empty.
ReadResult ReadWholeFile(TextRef path, std::string& bytes, LONGLONG sizeLimit = kLargestFile);

/// Puts a file with these bytes in the place of `path`, as ReplacedFile does it.
bool WriteWholeFile(TextRef path, const std::string& bytes);

/// Removes from a folder (with its trailing backslash) the temporary files of ReplacedFile whose process has
/// come to its end.
void RemoveLeftFiles(TextRef folderPrefix);

/// A file that is written beside its target, under a temporary name in the same folder, before it takes the
/// target's place as a whole: whatever fails, the old file stays. The temporary file goes with this object.
/// Only the end of the process can leave it, under a name like "~varnoke-1a2b-3c4d5e6f.tmp", unique in its
/// folder.
class ReplacedFile {
public:
    /// Creates the temporary file, empty and closed.
    explicit ReplacedFile(TextRef target);
    ~ReplacedFile();
    ReplacedFile& operator=(ReplacedFile&&) = delete;

    /// The temporary file, for others to write to; empty when it could not be created.
    const std::wstring& TemporaryPath() const { return m_path; }

    /// Makes these bytes the temporary file's whole content; false when not all of them could be written.
    bool Write(const std::string& bytes);

    /// Flushes the temporary file to the disk, looks at its size and moves it to the target's place,
    /// read-only or not. False when one of these fails; the target is as it was. A file that others wrote
    /// must not be empty; who let them write has made sure before that it is complete.
    bool Replace();

private:
    std::wstring m_target;
    std::wstring m_path;
    LONGLONG m_size = -1; // of what Write wrote, in bytes; negative while it was not called
};

} // namespace base
