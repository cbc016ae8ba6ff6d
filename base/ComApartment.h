// COM on a thread.
#pragma once

#include <windows.h>
#include <objbase.h>

namespace base {

/// A single-threaded apartment on the current thread for a scope. A thread that already has an apartment
/// keeps it, whatever its kind.
class ComApartment {
public:
    ComApartment() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComApartment() {
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    ComApartment& operator=(ComApartment&&) = delete;

    /// S_OK: a new apartment; S_FALSE: one of this kind was there; a failure: one of another kind, or none.
    HRESULT Result() const { return m_result; }

private:
    HRESULT m_result;
};

} // namespace base
