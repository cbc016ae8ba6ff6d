// CPLMInteract: operations on documents (transfer, sign tags, sign log, return file).
#include <afxwin.h>

#include "varnoke/PLMInteract.h"
#include "module/Guarded.h"
#include "plm/DocumentTransfer.h"
#include "plm/ReturnFile.h"
#include "plm/ServerQuery.h"
#include "plm/SignLog.h"
#include "plm/SignTags.h"

using varnoke::Guarded;
using varnoke::IsGiven;

long CPLMInteract::DownloadDoc(SSignFileDUL* list) {
    return Guarded(0L, [&] { return varnoke::DownloadWithDialog(list, m_parentWnd); });
}

long CPLMInteract::DownloadDocForBackSign(SSignFileDUL* list) {
    return Guarded(0L, [&] { return varnoke::DownloadSilently(list); });
}

long CPLMInteract::UploadDoc(SSignFileDUL* list) {
    return Guarded(0L, [&] { return varnoke::UploadWithDialog(list, m_parentWnd); });
}

long CPLMInteract::UploadDocForBackSign(SSignFileDUL* list) {
    return Guarded(0L, [&] { return varnoke::UploadSilently(list); });
}

long CPLMInteract::DownloadSignFile(wchar_t* localPath, wchar_t* remoteName) {
    return Guarded(0L, [&] {
        return IsGiven(localPath, L"localPath") && IsGiven(remoteName, L"remoteName") &&
               varnoke::DownloadFile(localPath, remoteName);
    });
}

long CPLMInteract::DownloadSignFileEx(wchar_t* userName, wchar_t* sealName) {
    return Guarded(0L, [&] {
        return IsGiven(userName, L"userName") && IsGiven(sealName, L"sealName") &&
               varnoke::DownloadSignatureDrawing(userName, sealName);
    });
}

CString CPLMInteract::GetRemoteFileName(wchar_t* userName, wchar_t*) {
    return Guarded(CString(), [&] { return varnoke::QueryDrawingName(userName); });
}

CString CPLMInteract::GetProValue(CString xmlFile, CString propertyName) {
    return varnoke::ReadObjectProperty(xmlFile, propertyName);
}

long CPLMInteract::SetDocSignTag(wchar_t* folder, wchar_t* fileName, long value) {
    return Guarded(0L, [&] { return varnoke::SetTag(varnoke::kSignTag, folder, fileName, value); });
}

long CPLMInteract::GetDocSignTag(wchar_t* folder, wchar_t* fileName, long* value) {
    return Guarded(0L, [&] { return varnoke::GetTag(varnoke::kSignTag, folder, fileName, value); });
}

long CPLMInteract::SetDocSignLogTag(wchar_t* folder, wchar_t* fileName, long value) {
    return Guarded(0L, [&] { return varnoke::SetTag(varnoke::kSignLogTag, folder, fileName, value); });
}

long CPLMInteract::GetDocSignLogTag(wchar_t* folder, wchar_t* fileName, long* value) {
    return Guarded(0L, [&] { return varnoke::GetTag(varnoke::kSignLogTag, folder, fileName, value); });
}

long CPLMInteract::SetDocSignTimeTag(wchar_t* folder, wchar_t* fileName) {
    return Guarded(0L, [&] { return varnoke::SetTimeTag(folder, fileName); });
}

long CPLMInteract::GetDocSignTimeTag(wchar_t* folder, wchar_t* fileName, long* changed) {
    return Guarded(0L, [&] { return varnoke::HasChanged(folder, fileName, changed); });
}

long CPLMInteract::GetDocLastModifyTimeString(wchar_t* folder, wchar_t* fileName, wchar_t* time) {
    return Guarded(0L, [&] { return varnoke::CopyModificationTime(folder, fileName, time); });
}

long CPLMInteract::UpdateDocsSignTag(SSignFileDUL* list, long withLogTags) {
    return Guarded(0L, [&] { return varnoke::ResetTags(list, withLogTags != 0); });
}

long CPLMInteract::UpdateDocsSignTimeTag(SSignFileDUL* list) {
    return Guarded(0L, [&] { return varnoke::RecordTimes(list); });
}

long CPLMInteract::WriteDelOrSignLogToLocal(SSignObj* object, CString folder, CString kind) {
    return Guarded(0L,
                   [&] { return varnoke::WriteDelOrSignLogToLocal(m_modelConfig, object, folder, kind); });
}

long CPLMInteract::WriteSignLogToServer(CString folder) {
    return Guarded(1L, [&] { return varnoke::WriteSignLogToServer(folder); });
}

long CPLMInteract::NotifyPLMSignForBackSignRet(CStringList& signedNames, wchar_t* keyProperty,
                                               wchar_t* workFolder, wchar_t* returnFile) {
    return Guarded(0L, [&] {
        return IsGiven(keyProperty, L"keyProperty") && IsGiven(workFolder, L"workFolder") &&
               IsGiven(returnFile, L"returnFile") &&
               varnoke::WriteReturnFile(signedNames, keyProperty, workFolder, returnFile);
    });
}

long CPLMInteract::SendSignLog(CString folder) {
    return Guarded(1L, [&] { return varnoke::SendSignLog(folder); });
}

long CPLMInteract::GetUnsentSignLog(CString folder, SSignType** entries) {
    return Guarded(0L, [&] {
        if (!entries) return 0L;
        *entries = varnoke::ReadUnsentLog(folder).release();
        return *entries ? 1L : 0L;
    });
}
