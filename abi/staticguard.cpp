// Thread-safe construction of function-local statics: the functions that the compiler calls around it.
#include <windows.h>
#include <climits>

namespace {

// States of a guard. Every other value is the epoch in which the construction was completed.
constexpr int NOT_STARTED = 0;
constexpr int UNDER_CONSTRUCTION = -1;
// Epochs count up from the lowest number, so that they stay below both states.
constexpr int FIRST_EPOCH = INT_MIN;

SRWLOCK g_lock = SRWLOCK_INIT;
CONDITION_VARIABLE g_constructionEnded = CONDITION_VARIABLE_INIT;
int g_epoch = FIRST_EPOCH;

} // namespace

extern "C" {

// Code tests a guard against this first, so a thread takes the lock only for what it has not yet seen done.
__declspec(thread) int _Init_thread_epoch = FIRST_EPOCH;

// Returns with the guard "under construction" for the one thread that is to construct, else completed.
void __cdecl _Init_thread_header(int* guard) {
    AcquireSRWLockExclusive(&g_lock);
    while (*guard == UNDER_CONSTRUCTION)
        SleepConditionVariableSRW(&g_constructionEnded, &g_lock, INFINITE, 0);
    if (*guard == NOT_STARTED)
        *guard = UNDER_CONSTRUCTION;
    else
        _Init_thread_epoch = g_epoch;
    ReleaseSRWLockExclusive(&g_lock);
}

// The construction succeeded.
void __cdecl _Init_thread_footer(int* guard) {
    AcquireSRWLockExclusive(&g_lock);
    *guard = ++g_epoch;
    _Init_thread_epoch = g_epoch;
    ReleaseSRWLockExclusive(&g_lock);
    WakeAllConditionVariable(&g_constructionEnded);
}

// The construction threw; the next thread tries again.
void __cdecl _Init_thread_abort(int* guard) {
    AcquireSRWLockExclusive(&g_lock);
    *guard = NOT_STARTED;
    ReleaseSRWLockExclusive(&g_lock);
    WakeAllConditionVariable(&g_constructionEnded);
}
}
