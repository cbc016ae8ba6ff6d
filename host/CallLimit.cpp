#include "host/CallLimit.h"

#include <algorithm>

#include "base/ExclusiveLock.h"

namespace host {

CallLimit::CallLimit(DWORD seconds, CallExpiry& expiry)
    : m_limit(ULONGLONG(seconds) * 1000), m_expiry(expiry),
      m_ended(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    if (seconds > 0) m_thread.reset(::CreateThread(nullptr, 0, &ThreadMain, this, 0, nullptr));
}

CallLimit::~CallLimit() {
    ::SetEvent(m_ended.get());
    if (m_thread) ::WaitForSingleObject(m_thread.get(), INFINITE);
}

void CallLimit::Set(ULONGLONG since) {
    {
        const base::ExclusiveLock lock(m_lock);
        m_since = since;
        if (!m_expired) return;
    }
    ::Sleep(INFINITE);
}

DWORD WINAPI CallLimit::ThreadMain(void* limit) {
    static_cast<CallLimit*>(limit)->Watch();
    return 0;
}

void CallLimit::Watch() {
    const DWORD pause = static_cast<DWORD>((std::min)(m_limit / 4, ULONGLONG(1000)));
    while (::WaitForSingleObject(m_ended.get(), pause) == WAIT_TIMEOUT) {
        {
            const base::ExclusiveLock lock(m_lock);
            m_expired = m_since != 0 && ::GetTickCount64() - m_since > m_limit;
            if (!m_expired) continue;
        }
        m_expiry.OnExpired();
        return;
    }
}

} // namespace host
