// The one way into the library: own module state, no exception out.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// Runs `body` under the library's own module state, so that its resources are found, and restores the
/// caller's state afterwards. Whatever is thrown inside ends here and gives `failure`.
template <class R, class F>
R Guarded(R failure, F body) noexcept {
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    try {
        return body();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
    return failure;
}

/// The same for a body without a result: it ends where something is thrown.
template <class F>
void Guarded(F body) noexcept {
    Guarded(0, [&body] {
        body();
        return 0;
    });
}

} // namespace varnoke
