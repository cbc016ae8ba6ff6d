// The signer's signature drawing, which the sign dialog previews.
#pragma once

#include <afxwin.h>

#include "plm/PLMInteract.h"

namespace host {

/// Fetched to where the sign dialog looks for it, and removed again with this object: a signature is not left
/// lying about in the temporary folder.
class CSignatureDrawing {
public:
    /// Without a drawing on the server the preview stays empty; that is no error.
    CSignatureDrawing(CPLMInteract& plm, const CString& user, const CString& role);
    ~CSignatureDrawing();
    CSignatureDrawing(const CSignatureDrawing&) = delete;
    CSignatureDrawing& operator=(const CSignatureDrawing&) = delete;

private:
    CString m_strPath;
};

} // namespace host
