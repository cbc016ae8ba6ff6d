// The signer's signature drawing.
#include <afxwin.h>

#include "host/Paths.h"
#include "host/Records.h"
#include "host/SignatureDrawing.h"

namespace host {

CSignatureDrawing::CSignatureDrawing(CPLMInteract& plm, const CString& user, const CString& role) {
    wchar_t folder[MAX_PATH + 1];
    if (!plm.DownloadSignFileEx(InText(user), InText(role)) || !::GetTempPathW(MAX_PATH + 1, folder)) return;
    m_strPath = JoinPath(folder, user + L"_" + role + L".dwg");
}

CSignatureDrawing::~CSignatureDrawing() {
    if (!m_strPath.IsEmpty()) ::DeleteFileW(m_strPath);
}

} // namespace host
