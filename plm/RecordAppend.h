// A further entry at the end of a sign record that is not read for it.
#pragma once

#include <afxwin.h>

#include "plm/RecordIndex.h"
#include "plm/RecordLock.h"

namespace varnoke {

/// Brings a record that is still as it was noted to its intended state, in time that does not depend on the
/// record's size (but for the first entry, which tries out whether that may be done). False, with the file
/// unchanged, when that takes the whole record. Keeps `known` current. Failing calls of the model raise
/// _com_error.
bool LogInPlace(KnownRecord& known, const CString& signDataFolder, const SignLogSource& source,
                RecordLock& lock);

/// Finishes the change of a killed process if it was cut off and the record can't be read therefore.
void FinishAnnounced(const RecordLock& lock, const CString& recordPath);

} // namespace varnoke
