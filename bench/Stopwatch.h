// Times pieces of work.
#pragma once

#include <windows.h>

namespace bench {

/// Milliseconds that one run of `work` takes.
template <class Work>
double Milliseconds(Work work) {
    LARGE_INTEGER frequency, start, end;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&start);
    work();
    ::QueryPerformanceCounter(&end);
    return double(end.QuadPart - start.QuadPart) * 1000 / double(frequency.QuadPart);
}

} // namespace bench
