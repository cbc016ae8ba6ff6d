// Another thread, for what is kept per thread.
#pragma once
#include <windows.h>

namespace tests {

// Runs the body on a thread of its own, to its end.
template <class TBody>
void OnOtherThread(TBody body) {
    const auto start = [](void* argument) -> DWORD {
        (*static_cast<TBody*>(argument))();
        return 0;
    };
    const HANDLE thread = CreateThread(nullptr, 0, start, &body, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
}

} // namespace tests
