// Fresh identifiers as text.
#include "module/NewGuid.h"

#include "base/Owned.h"

namespace varnoke {

CString NewGuid() {
    GUID guid = {};
    LPOLESTR text = nullptr;
    if (FAILED(::CoCreateGuid(&guid)) || FAILED(::StringFromCLSID(guid, &text))) return CString();
    const base::TaskMemory<wchar_t> owned(text);
    const CString braced(text);
    return braced.Mid(1, braced.GetLength() - 2);
}

} // namespace varnoke
