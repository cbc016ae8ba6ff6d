// The probing thread posts the next message when the last one was handled.
#include "bench/Responsiveness.h"

#include "bench/Stopwatch.h"

#include <algorithm>

namespace bench {

namespace {

constexpr UINT kProbe = WM_APP + 1;
constexpr DWORD kPause = 3; // ms between an answer and the next message

} // namespace

Responsiveness::Responsiveness(DWORD delay)
    : m_delay(delay), m_window(::CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                                 ::GetModuleHandleW(nullptr), nullptr)),
      m_answered(::CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      m_stop(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    ::SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OnMessage));
    m_thread.reset(::CreateThread(nullptr, 0, &Probe, this, 0, nullptr));
}

Responsiveness::~Responsiveness() {
    Stop();
}

double Responsiveness::Stop() {
    if (m_thread) {
        ::SetEvent(m_stop.get());
        ::WaitForSingleObject(m_thread.get(), INFINITE);
        m_thread.reset();
        ::DestroyWindow(m_window);
    }
    return m_slowest;
}

LRESULT CALLBACK Responsiveness::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kProbe) ::SetEvent(reinterpret_cast<HANDLE>(lParam));
    return ::DefWindowProcW(window, message, wParam, lParam);
}

DWORD WINAPI Responsiveness::Probe(void* self) {
    static_cast<Responsiveness*>(self)->ProbeUntilStopped();
    return 0;
}

void Responsiveness::ProbeUntilStopped() {
    const HANDLE events[] = {m_stop.get(), m_answered.get()};
    DWORD pause = m_delay;
    while (::WaitForSingleObject(m_stop.get(), pause) == WAIT_TIMEOUT) {
        pause = kPause;
        DWORD ended = WAIT_OBJECT_0;
        const double time = Milliseconds([&] {
            ::PostMessageW(m_window, kProbe, 0, reinterpret_cast<LPARAM>(m_answered.get()));
            ended = ::WaitForMultipleObjects(2, events, FALSE, INFINITE);
        });
        if (ended == WAIT_OBJECT_0) return;
        m_slowest = (std::max)(m_slowest, time);
        ++m_answers;
    }
}

} // namespace bench
