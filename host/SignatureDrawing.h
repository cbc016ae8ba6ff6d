// The signer's signature drawing, which the sign dialog previews.
#pragma once

#include <afxwin.h>

#include "varnoke/PLMInteract.h"

namespace host {

/// Fetched to where the sign dialog looks for it, and removed again with this object: a signature is not left
/// lying about in the temporary folder.
class SignatureDrawing {
public:
    /// Without a drawing on the server the preview stays empty; that is no error.
    SignatureDrawing(CPLMInteract& plm, const CString& user, const CString& role);
    ~SignatureDrawing();
    SignatureDrawing& operator=(SignatureDrawing&&) = delete;

private:
    CString m_path;
};

} // namespace host
