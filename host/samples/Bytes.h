// Growing byte buffers and the files that they become.
#pragma once

#include <afxwin.h>

#include <vector>

namespace samples {

using Bytes = std::vector<unsigned char>;

/// Appends a number, least significant byte first.
void AppendLong(Bytes& bytes, unsigned long value);
void Append(Bytes& bytes, const void* data, size_t size);

/// UTF-8 without a byte order mark.
Bytes Utf8Of(const CString& text);
/// UTF-16 with a byte order mark, in which the profile functions keep any text.
Bytes Utf16Of(const CString& text);

/// Replaces the file; false when it could not be written as a whole.
bool WriteFileBytes(const CString& path, const Bytes& bytes);

} // namespace samples
