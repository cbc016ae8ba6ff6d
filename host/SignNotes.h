// What is kept of a signature beside the document: its entry in the sign log and its tags.
#pragma once

#include <afxwin.h>

#include "host/Document.h"
#include "host/RunState.h"
#include "varnoke/PLMInteract.h"

namespace host {

/// Logs the signature of a document that the server has, with the signer and the date where the message left
/// them open. False when the entry could not be written.
bool LogSignature(CPLMInteract& plm, const CString& work, const Document& document,
                  const SignatureNote& signature);

/// Sets the tags of a document that was signed and returned.
void MarkSigned(CPLMInteract& plm, const CString& work, const Document& document, bool logged);

} // namespace host
