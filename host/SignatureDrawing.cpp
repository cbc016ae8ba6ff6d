// The signer's signature drawing.
#include <afxwin.h>

#include "base/Paths.h"
#include "host/DocumentName.h"
#include "host/Paths.h"
#include "host/Records.h"
#include "host/SignatureDrawing.h"

namespace host {

SignatureDrawing::SignatureDrawing(CPLMInteract& plm, const CString& user, const CString& role) {
    // The role comes with the message: it must not lead out of the temporary folder.
    const CString name = user + L"_" + role + L".dwg";
    if (CheckDocumentName(name) != TextId::Ready) return;
    if (!plm.DownloadSignFileEx(InText(user), InText(role))) return;
    m_path = JoinPath(base::TemporaryFolderPrefix().c_str(), name);
}

SignatureDrawing::~SignatureDrawing() {
    if (!m_path.IsEmpty()) ::DeleteFileW(m_path);
}

} // namespace host
