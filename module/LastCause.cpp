// The exported way to the cause of a failure.
#include "module/Failure.h"

long Cmn_GetLastCause(long* code, wchar_t* text, long capacity) {
    const varnoke::StatedCause last = varnoke::LastCause();
    if (code) *code = static_cast<long>(last.cause);
    if (text && capacity > 0) ::lstrcpynW(text, last.text, static_cast<int>(capacity));
    return last.cause == varnoke::Cause::None ? 0 : 1;
}
