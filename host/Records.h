// Records and texts on their way between the host and the library.
#pragma once

#include <afxwin.h>

#include "varnoke/OwnedRecord.h"

namespace host {

using LoginInfoPtr = varnoke::OwnedRecord<SLoginInfo>;
using SignTypePtr = varnoke::OwnedRecord<SSignType>;
using SignInfoPtr = varnoke::OwnedRecord<SSignInfo>;

/// A text argument of the library, which takes writable pointers but only reads them.
inline wchar_t* InText(const CString& text) {
    return const_cast<wchar_t*>(text.GetString());
}

} // namespace host
