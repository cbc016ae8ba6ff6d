// The one way into the library: own module state, no exception out.
#pragma once

#include <afxwin.h>

#include <type_traits>

#include "module/Failure.h"

namespace varnoke {

/// Runs `body` under the library's own module state, so that its resources are found, and restores the
/// caller's state afterwards. Whatever is thrown inside ends here and gives `failure`. `name` is the calling
/// function's: the operation that the cause and the trace speak of.
template <class R, class F>
R Guarded(R failure, F body, const char* name = __builtin_FUNCTION()) noexcept {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    const Operation operation(name);
    try {
        R result = body();
        if constexpr (std::is_arithmetic_v<R>) {
            operation.End(static_cast<long>(result), result == failure);
        } else if constexpr (std::is_same_v<R, CString>) {
            operation.End(result.GetLength(), result.IsEmpty());
        } else {
            operation.End(result ? 1 : 0, !result);
        }
        return result;
    } catch (...) {
        StateCaughtException();
    }
    operation.End(0, true);
    return failure;
}

/// The same for a body without a result, which is no operation: it ends where something is thrown.
template <class F>
void Guarded(F body) noexcept {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    try {
        body();
    } catch (...) {
        StateCaughtException();
    }
}

} // namespace varnoke
