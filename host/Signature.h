// Placing one signature with the library.
#pragma once

#include <afxwin.h>

#include "host/Document.h"
#include "host/Session.h"

namespace host {

/// Fills what the library leaves to the host: the two sign texts (identifier and path of the drawing), the
/// signer and the role where no dialog gave them, and where seal and date go on the sheet.
void CompleteSignInfo(SSignInfo& info, const Document& document, const CString& path, const CString& user);

/// The interactive and the silent operation of the library.
using SignOperation = long (CSignOpt::*)(IDispatch*, SSignInfo*);

/// Opens the drawing, signs it and closes it again. False when the server did not sign.
bool SignDrawing(CSignOpt& signOpt, SignOperation operation, SSignInfo& info, const CString& path);

} // namespace host
