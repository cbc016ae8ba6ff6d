#include <afxwin.h>

#include "base/Owned.h"
#include "host/StopRequest.h"

namespace host {

namespace {

volatile LONG g_made = 0;

HANDLE Ended() {
    static const base::KernelHandle event(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    return event.get();
}

BOOL WINAPI OnControl(DWORD control) {
    ::InterlockedExchange(&g_made, 1);
    // After a return the system ends the program, except for the keys.
    if (control != CTRL_C_EVENT && control != CTRL_BREAK_EVENT) ::WaitForSingleObject(Ended(), INFINITE);
    return TRUE;
}

} // namespace

StopRequest::StopRequest() {
    Ended();
    ::SetConsoleCtrlHandler(&OnControl, TRUE);
}

StopRequest::~StopRequest() {
    ::SetEvent(Ended());
    ::SetConsoleCtrlHandler(&OnControl, FALSE);
}

bool StopRequest::IsMade() const {
    return g_made != 0;
}

} // namespace host
