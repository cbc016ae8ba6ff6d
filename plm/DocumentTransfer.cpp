// Transfer of documents and signature drawings from and to the server.
#include <afxwin.h>

#include "plm/DocumentTransfer.h"
#include "module/Failure.h"
#include "module/ModulePaths.h"
#include "module/TransferFiles.h"
#include "plm/ServerQuery.h"
#include "plm/SignTags.h"
#include "neighbours/durvell.h"
#include "ui/DLDDlg.h"
#include "ui/ULDDlg.h"

namespace varnoke {

namespace {

long RunDialog(SSignFileDUL* list, CTransferDlg& dialog, Cause failed) {
    dialog.SetFileList(list);
    dialog.DoModal();
    int result = 0;
    dialog.GetResultCode(&result);
    // The dialog's result, 1 for "all transferred".
    if (result == 0 || result == 2) Fail(Cause::TransferInterrupted);
    if (result == 3) Fail(Cause::TransferSkipped);
    if (result == 4) Fail(failed);
    if (result != 1) KeepCause();
    return result;
}

/// Calls one of the server access library's transfer functions; whether it succeeded.
bool Transferred(int (*transfer)(const wchar_t*, const wchar_t*, int, int), const CString& localPath,
                 const CString& remoteName, Cause failed) {
    const int result = transfer(localPath, remoteName, 0, 0);
    return result == 0 || Fail(failed, remoteName, result);
}

} // namespace

long DownloadWithDialog(SSignFileDUL* list, CWnd* parent) {
    CDLDDlg dialog(parent);
    if (!list) return Fail(Cause::ListUnusable);
    const long result = RunDialog(list, dialog, Cause::DownloadFailed);
    RecordTimes(list);
    ResetTags(list, true);
    return result;
}

long UploadWithDialog(SSignFileDUL* list, CWnd* parent) {
    CULDDlg dialog(parent);
    if (!list) return Fail(Cause::ListUnusable);
    const long result = RunDialog(list, dialog, Cause::UploadFailed);
    RecordTimes(list);
    return result;
}

bool DownloadSilently(SSignFileDUL* list) {
    if (!HasDocuments(list)) return Fail(Cause::ListUnusable);
    bool complete = true;
    ForEachFile(*list, [&complete](SSignFileDULItem& item, const CString& localPath) {
        complete = Transferred(dvl_DownloadFile, localPath, item.m_strRemoteName, Cause::DownloadFailed);
        if (complete) item.m_nState = 1;
        return complete;
    });
    if (complete) RecordTimes(list);
    return complete;
}

bool UploadSilently(SSignFileDUL* list) {
    if (!HasDocuments(list)) return Fail(Cause::ListUnusable);
    bool lastSent = true;
    ForEachFile(*list, [&lastSent](SSignFileDULItem& item, const CString& localPath) {
        lastSent = Transferred(dvl_UploadFile, localPath, item.m_strRemoteName, Cause::UploadFailed);
        if (lastSent) item.m_nState = 1;
        return true;
    });
    RecordTimes(list);
    return lastSent;
}

bool DownloadFile(const CString& localPath, const CString& remoteName) {
    ::DeleteFileW(localPath);
    return Transferred(dvl_DownloadFile, localPath, remoteName, Cause::DownloadFailed);
}

bool DownloadSignatureDrawing(const CString& userName, const CString& sealName) {
    const CString path = JoinPath(TemporaryFolder(), userName + L"_" + sealName + L".dwg");
    const CString remoteName = QueryDrawingName(userName);
    if (remoteName.IsEmpty()) Fail(Cause::DrawingNotFound, userName);
    return DownloadFile(path, remoteName);
}

} // namespace varnoke
