// Ownership of the records that the library hands out: each goes back through its own release function.
#pragma once

#include <afxwin.h>

#include <memory>

#include "varnoke/SignRecords.h"

namespace host {

struct RecordReleaser {
    void operator()(SLoginInfo* record) const { Cmn_ReleaseLoginInfo(record); }
    void operator()(SSignType* record) const { Cmn_ReleaseSignType(record); }
    void operator()(SSignInfo* record) const { Cmn_ReleaseSignInfo(record); }
};

using LoginInfoPtr = std::unique_ptr<SLoginInfo, RecordReleaser>;
using SignTypePtr = std::unique_ptr<SSignType, RecordReleaser>;
using SignInfoPtr = std::unique_ptr<SSignInfo, RecordReleaser>;

/// A text argument of the library, which takes writable pointers but only reads them.
inline wchar_t* InText(const CString& text) {
    return const_cast<wchar_t*>(text.GetString());
}

} // namespace host
