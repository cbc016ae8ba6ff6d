#include <afxwin.h>

#include "host/Paths.h"
#include "host/RunLock.h"

namespace host {

RunLock::RunLock(const CString& work) {
    constexpr int kAttempts = 10;
    constexpr DWORD kPause = 50; // ms
    EnsureFolder(JoinPath(work, L"SignData"));
    const CString path = SignDataFile(work, L"SignRun.lock");
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (attempt > 0) ::Sleep(kPause);
        m_file = base::OwnFile(::CreateFileW(path, GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                             FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        if (m_file) {
            m_state = Result::Held;
            return;
        }
        const DWORD error = ::GetLastError();
        // A file on its way out denies access until its last handle is gone.
        if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) return;
        if (error == ERROR_SHARING_VIOLATION) m_state = Result::Busy;
    }
}

} // namespace host
