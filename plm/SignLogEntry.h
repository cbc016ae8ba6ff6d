// New entries of the sign log.
#pragma once

#include <afxwin.h>

#include "config/qormodel.h"
#include "module/SignRecords.h"

namespace varnoke {

/// What a log entry is made of. Refers to the record and the configurations, which must outlive it.
struct SignLogSource {
    /// Raises _com_error when the configuration can't be read.
    SignLogSource(const SSignObj& obj, const CString& kind, QORMODEL::IQORObjConfig* local,
                  QORMODEL::IQORObjMapConfig* map);

    const SSignObj& m_obj;
    QORMODEL::IQORObjConfig* m_pLocal;  // weak
    QORMODEL::IQORObjMapConfig* m_pMap; // weak
    CString m_strKind;                  // "N" or "D"
    CString m_strEntryType;
    CString m_strDocumentId;
    CString m_strRole;
};

/// The value of an entry's property, empty when it has none.
CString ReadProperty(QORMODEL::IQORDataObject* object, const wchar_t* name);

/// Adds a new entry to the model. Raises _com_error on failure, with the model unchanged.
void AddEntry(QORMODEL::IQORDataModel* model, const SignLogSource& source);

} // namespace varnoke
