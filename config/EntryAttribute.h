// Attributes of the entries of an object configuration or of a map between two.
#pragma once

#include <afxwin.h>

#include "neighbours/qormodel.h"
#include "module/BstrText.h"

namespace varnoke {

/// Empty when the entry (zero-based index) has no such attribute; raises _com_error when the call fails.
template <class Config>
CString EntryAttribute(Config* config, long index, const wchar_t* name) {
    _bstr_t value;
    _com_util::CheckError(config->GetEntryAttribute(index, _bstr_t(name), value.GetAddress()));
    return ToText(value);
}

} // namespace varnoke
