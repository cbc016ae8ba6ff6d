// Byte buffers and files.
#include <afxwin.h>

#include "host/samples/Bytes.h"
#include "base/Owned.h"

namespace samples {

void AppendLong(Bytes& bytes, unsigned long value) {
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<unsigned char>(value >> shift));
    }
}

void Append(Bytes& bytes, const void* data, size_t size) {
    const unsigned char* first = static_cast<const unsigned char*>(data);
    bytes.insert(bytes.end(), first, first + size);
}

Bytes Utf8Of(const CString& text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), nullptr, 0, nullptr, nullptr);
    Bytes bytes(static_cast<size_t>(size));
    ::WideCharToMultiByte(CP_UTF8, 0, text, text.GetLength(), reinterpret_cast<char*>(bytes.data()), size,
                          nullptr, nullptr);
    return bytes;
}

Bytes Utf16Of(const CString& text) {
    Bytes bytes = {0xFF, 0xFE};
    Append(bytes, text.GetString(), static_cast<size_t>(text.GetLength()) * sizeof(wchar_t));
    return bytes;
}

bool WriteFileBytes(const CString& path, const Bytes& bytes) {
    const base::FileHandle file = base::OwnFile(
        ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    return file &&
           ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
}

} // namespace samples
