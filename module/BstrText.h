// Texts on their way between the framework and COM.
#pragma once

#include <afxwin.h>
#include <comdef.h>

namespace varnoke {

/// A copy as a BSTR.
inline _bstr_t ToBstr(const CString& text) {
    return _bstr_t(static_cast<const wchar_t*>(text));
}

/// A copy as a CString; empty for a null BSTR.
inline CString ToText(const _bstr_t& text) {
    return CString(static_cast<const wchar_t*>(text));
}

} // namespace varnoke
