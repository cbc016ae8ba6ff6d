// Owners of the resources that only a host needs.
#pragma once

#include <afxwin.h>

#include <memory>

namespace host {

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

} // namespace host
