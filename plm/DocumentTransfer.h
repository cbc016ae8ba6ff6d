// Transfer of documents and signature drawings from and to the server.
#pragma once

#include <afxwin.h>

#include "varnoke/SignRecords.h"

namespace varnoke {

/// Transfer with a progress dialog; the result is the dialog's, 0 without a list. All documents are tagged
/// afterwards, transferred or not.
long DownloadWithDialog(SSignFileDUL* list, CWnd* parent);
long UploadWithDialog(SSignFileDUL* list, CWnd* parent);

/// Transfer on the calling thread. A download stops at the first failure and then tags nothing; an upload
/// goes on, tags all documents, and its result is that of the last file attempted.
bool DownloadSilently(SSignFileDUL* list);
bool UploadSilently(SSignFileDUL* list);

/// Replaces a local file (full path) by the server's.
bool DownloadFile(const CString& localPath, const CString& remoteName);
/// Fetches the user's signature drawing to <user>_<seal>.dwg in the temporary folder.
bool DownloadSignatureDrawing(const CString& userName, const CString& sealName);

} // namespace varnoke
