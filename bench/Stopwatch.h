// Times pieces of work.
#pragma once

#include <windows.h>
#include <algorithm>

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

/// The shortest time of several rounds, so that a busy machine disturbs little.
class BestTime {
public:
    void Add(double milliseconds) { m_best = m_best < 0 ? milliseconds : (std::min)(m_best, milliseconds); }
    double Value() const { return m_best; }

private:
    double m_best = -1;
};

} // namespace bench
