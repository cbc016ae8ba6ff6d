// Owners of the Windows handles that the stand-ins use: the one place where these are closed.
#pragma once

#include <windows.h>
#include <ole2.h>
#include <memory>
#include <type_traits>

namespace standins {

struct CloseFileHandle {
    using pointer = HANDLE;
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
struct CloseRegKey {
    void operator()(HKEY key) const { ::RegCloseKey(key); }
};
struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
struct DeleteMemoryDc {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};

// Null when there is no file; see OpenedFile.
using UniqueFile = std::unique_ptr<void, CloseFileHandle>;
using UniqueRegKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseRegKey>;
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using UniqueFont = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using UniqueMemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDc>;

// CreateFile marks failure with another value than null.
inline UniqueFile OpenedFile(HANDLE file) {
    return UniqueFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

// Holds a slim lock exclusively for a scope.
class ExclusiveLock {
public:
    explicit ExclusiveLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~ExclusiveLock() { ::ReleaseSRWLockExclusive(&m_lock); }
    ExclusiveLock(const ExclusiveLock&) = delete;
    ExclusiveLock& operator=(const ExclusiveLock&) = delete;

private:
    SRWLOCK& m_lock;
};

// COM on the current thread for a scope. A thread that already has an apartment keeps it, whatever its kind.
class ComApartment {
public:
    ComApartment() : m_entered(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComApartment() {
        if (m_entered) ::CoUninitialize();
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool m_entered;
};

} // namespace standins
