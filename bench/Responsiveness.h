// Measures how long a thread's windows take to answer.
#pragma once

#include <afxwin.h>

#include "base/Owned.h"

namespace bench {

/// Posts messages to a hidden window of the constructing thread, one after the other, and keeps the longest
/// time until one was handled. Construct, use and destroy on the same thread.
class Responsiveness {
public:
    /// The first message is posted after `delay` milliseconds.
    explicit Responsiveness(DWORD delay);
    ~Responsiveness();
    Responsiveness(const Responsiveness&) = delete;
    Responsiveness& operator=(const Responsiveness&) = delete;

    /// Ends posting; milliseconds of the slowest answer and the number of answers.
    double Stop();
    int Answers() const { return m_answers; }

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static DWORD WINAPI Probe(void* self);
    void ProbeUntilStopped();

    DWORD m_delay;
    HWND m_window; // this thread's, destroyed by Stop
    base::KernelHandle m_answered;
    base::KernelHandle m_stop;
    base::KernelHandle m_thread;
    double m_slowest = 0;
    int m_answers = 0;
};

} // namespace bench
