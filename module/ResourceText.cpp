// The module state in force must be the library's, as it is inside every exported operation.
#include "module/ResourceText.h"

namespace varnoke {

CString ResourceText(UINT id) {
    CString text;
    if (!text.LoadString(id)) text.Empty();
    return text;
}

} // namespace varnoke
