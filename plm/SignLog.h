// The local record of signatures and deletions, SignData\DocSignRecord.xml, and its way to the server.
#pragma once

#include <afxwin.h>
#include "varnoke/ModelConfig.h"
#include "varnoke/OwnedRecord.h"

namespace varnoke {

/// Logs a signature (kind "N") or a deletion (kind "D") of the document and role that the sign object
/// names ("ID", "SIGN_ROLE"). A deletion cancels the unsent signature, a further signature replaces it.
/// Returns 1 when the record file is in its intended state; else 0, with the file unchanged. May throw
/// _com_error and CException*.
long WriteDelOrSignLogToLocal(CModelConfig& config, const SSignObj* obj, const CString& folder,
                              const CString& kind);

/// Sends the record file to the server and deletes it, whatever the server says. Returns 0 for success,
/// else 1; an exported caller must give 1 for a caught exception, too.
long WriteSignLogToServer(const CString& folder);

/// The same, but the record stays when the server refuses it, and without one the server is not called. A
/// record that an earlier host put aside while it was sent goes first.
long SendSignLog(const CString& folder);

/// The entries of the record file as objects; an empty list without a file, null for an unreadable one.
OwnedRecord<SSignType> ReadUnsentLog(const CString& folder);

} // namespace varnoke
