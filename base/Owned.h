// Owners of the system's resources: the one place where they are given back.
#pragma once

#include <windows.h>
#include <objbase.h>
#include <oleauto.h>

#include <memory>
#include <type_traits>

namespace base {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
/// A thread, event or other kernel object whose failed creation gives a null handle.
using KernelHandle = std::unique_ptr<void, HandleCloser>;
/// An open file; see OwnFile.
using FileHandle = std::unique_ptr<void, HandleCloser>;

/// Takes what CreateFileW gave; empty when the file could not be opened.
inline FileHandle OwnFile(HANDLE file) {
    return FileHandle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

struct FindCloser {
    using pointer = HANDLE;
    void operator()(HANDLE find) const { ::FindClose(find); }
};
/// A file search; see OwnFind.
using FindHandle = std::unique_ptr<void, FindCloser>;

/// Takes what FindFirstFileW gave; empty when nothing was found.
inline FindHandle OwnFind(HANDLE find) {
    return FindHandle(find == INVALID_HANDLE_VALUE ? nullptr : find);
}

struct LibraryFreer {
    using pointer = HMODULE;
    void operator()(HMODULE module) const { ::FreeLibrary(module); }
};
/// A library loaded with LoadLibraryW.
using LibraryHandle = std::unique_ptr<void, LibraryFreer>;

struct RegistryKeyCloser {
    void operator()(HKEY key) const { ::RegCloseKey(key); }
};
using RegistryKey = std::unique_ptr<std::remove_pointer_t<HKEY>, RegistryKeyCloser>;

template <class Handle>
struct GdiObjectDeleter {
    using pointer = Handle;
    void operator()(Handle object) const { ::DeleteObject(object); }
};
/// A pen, brush, font or bitmap; it must not be selected into a device context any more when it goes.
template <class Handle>
using GdiObject = std::unique_ptr<void, GdiObjectDeleter<Handle>>;

struct MemoryDcDeleter {
    using pointer = HDC;
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};
/// A device context of CreateCompatibleDC.
using MemoryDc = std::unique_ptr<void, MemoryDcDeleter>;

struct TaskMemoryFreer {
    void operator()(void* memory) const { ::CoTaskMemFree(memory); }
};
/// Memory that COM allocated for its caller, such as the text of an identifier.
template <class T>
using TaskMemory = std::unique_ptr<T, TaskMemoryFreer>;

struct BstrFreer {
    void operator()(wchar_t* text) const { ::SysFreeString(text); }
};
/// A BSTR where _bstr_t cannot be used: taking it over needs no memory and cannot fail.
using OwnedBstr = std::unique_ptr<wchar_t, BstrFreer>;

} // namespace base
