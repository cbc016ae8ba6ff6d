// New entries of the sign log.
#pragma once

#include <afxwin.h>

#include "neighbours/qormodel.h"
#include "varnoke/SignRecords.h"

namespace varnoke {

/// What a log entry is made of. Refers to the record and the configurations, which must outlive it.
struct SignLogSource {
    /// Raises _com_error when the configuration can't be read.
    SignLogSource(const SSignObj& obj, const CString& kind, QORMODEL::IQORObjConfig* local,
                  QORMODEL::IQORObjMapConfig* map);

    const SSignObj& obj;
    QORMODEL::IQORObjConfig* local;  // weak
    QORMODEL::IQORObjMapConfig* map; // weak
    CString kind;                    // "N" or "D"
    CString entryType;
    CString documentId;
    CString role;
};

/// The value of an entry's property, empty when it has none.
CString EntryProperty(QORMODEL::IQORDataObject* object, const wchar_t* name);

/// Adds a new entry to the model. Raises _com_error on failure, with the model unchanged.
void AddEntry(QORMODEL::IQORDataModel* model, const SignLogSource& source);

} // namespace varnoke
