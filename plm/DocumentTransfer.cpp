// Transfer of documents and signature drawings from and to the server.
#include <afxwin.h>

#include "plm/DocumentTransfer.h"
#include "module/ModulePaths.h"
#include "plm/ServerQuery.h"
#include "plm/SignTags.h"
#include "neighbours/durvell.h"
#include "ui/DLDDlg.h"
#include "ui/ULDDlg.h"

namespace varnoke {

namespace {

/// Calls transfer(item, local path) for each item that has both names, until it gives false.
template <class Transfer>
void ForEachFile(const SSignFileDUL& list, Transfer transfer) {
    for (POSITION position = list.m_lstItem.GetHeadPosition(); position;) {
        SSignFileDULItem* item = list.m_lstItem.GetNext(position);
        if (!item || item->m_strRemoteName.IsEmpty() || item->m_strLocalName.IsEmpty()) continue;
        if (!transfer(*item, JoinPath(list.m_strFolder, item->m_strLocalName))) return;
    }
}

long RunDialog(SSignFileDUL* list, CTransferDlg& dialog) {
    dialog.SetFileList(list);
    dialog.DoModal();
    int result = 0;
    dialog.GetResultCode(&result);
    return result;
}

} // namespace

long DownloadWithDialog(SSignFileDUL* list, CWnd* parent) {
    CDLDDlg dialog(parent);
    if (!list) return 0;
    const long result = RunDialog(list, dialog);
    RecordTimes(list);
    ResetTags(list, true);
    return result;
}

long UploadWithDialog(SSignFileDUL* list, CWnd* parent) {
    CULDDlg dialog(parent);
    if (!list) return 0;
    const long result = RunDialog(list, dialog);
    RecordTimes(list);
    return result;
}

bool DownloadSilently(SSignFileDUL* list) {
    if (!HasDocuments(list)) return false;
    bool complete = true;
    ForEachFile(*list, [&complete](SSignFileDULItem& item, const CString& localPath) {
        complete = dvl_DownloadFile(localPath, item.m_strRemoteName, 0, 0) == 0;
        if (complete) item.m_nState = 1;
        return complete;
    });
    if (complete) RecordTimes(list);
    return complete;
}

bool UploadSilently(SSignFileDUL* list) {
    if (!HasDocuments(list)) return false;
    bool lastSent = true;
    ForEachFile(*list, [&lastSent](SSignFileDULItem& item, const CString& localPath) {
        lastSent = dvl_UploadFile(localPath, item.m_strRemoteName, 0, 0) == 0;
        if (lastSent) item.m_nState = 1;
        return true;
    });
    RecordTimes(list);
    return lastSent;
}

bool DownloadFile(const CString& localPath, const CString& remoteName) {
    ::DeleteFileW(localPath);
    return dvl_DownloadFile(localPath, remoteName, 0, 0) == 0;
}

bool DownloadSignatureDrawing(const CString& userName, const CString& sealName) {
    const CString path = JoinPath(TemporaryFolder(), userName + L"_" + sealName + L".dwg");
    return DownloadFile(path, QueryDrawingName(userName));
}

} // namespace varnoke
