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

} // namespace varnoke
