// CPLMInteract: operations on documents (transfer, sign tags, sign log, return file).
#include <afxwin.h>

#include "varnoke/PLMInteract.h"
#include "module/Guarded.h"
#include "module/Text.h"
#include "plm/DocumentTransfer.h"
#include "plm/ReturnFile.h"
#include "plm/ServerQuery.h"
#include "plm/SignLog.h"
#include "plm/SignTags.h"

using varnoke::Guarded;
using varnoke::HasText;

long CPLMInteract::DownloadDoc(SSignFileDUL* pList) {
    return Guarded(0L, [&] { return varnoke::DownloadWithDialog(pList, m_parentWnd); });
}

long CPLMInteract::DownloadDocForBackSign(SSignFileDUL* pList) {
    return Guarded(0L, [&] { return varnoke::DownloadSilently(pList); });
}

long CPLMInteract::UploadDoc(SSignFileDUL* pList) {
    return Guarded(0L, [&] { return varnoke::UploadWithDialog(pList, m_parentWnd); });
}

long CPLMInteract::UploadDocForBackSign(SSignFileDUL* pList) {
    return Guarded(0L, [&] { return varnoke::UploadSilently(pList); });
}

long CPLMInteract::DownloadSignFile(wchar_t* pszLocalPath, wchar_t* pszRemoteName) {
    return Guarded(0L, [&] {
        return HasText(pszLocalPath) && HasText(pszRemoteName) &&
               varnoke::DownloadFile(pszLocalPath, pszRemoteName);
    });
}

long CPLMInteract::DownloadSignFileEx(wchar_t* pszUserName, wchar_t* pszSealName) {
    return Guarded(0L, [&] {
        return HasText(pszUserName) && HasText(pszSealName) &&
               varnoke::DownloadSignatureDrawing(pszUserName, pszSealName);
    });
}

CString CPLMInteract::GetRemoteFileName(wchar_t* pszUserName, wchar_t*) {
    return Guarded(CString(), [&] { return varnoke::QueryDrawingName(pszUserName); });
}

CString CPLMInteract::GetProValue(CString strXmlFile, CString strProName) {
    return varnoke::ReadProperty(strXmlFile, strProName);
}

long CPLMInteract::SetDocSignTag(wchar_t* pszFolder, wchar_t* pszFileName, long nValue) {
    return Guarded(0L, [&] { return varnoke::SetTag(varnoke::kSignTag, pszFolder, pszFileName, nValue); });
}

long CPLMInteract::GetDocSignTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pValue) {
    return Guarded(0L, [&] { return varnoke::GetTag(varnoke::kSignTag, pszFolder, pszFileName, pValue); });
}

long CPLMInteract::SetDocSignLogTag(wchar_t* pszFolder, wchar_t* pszFileName, long nValue) {
    return Guarded(0L, [&] { return varnoke::SetTag(varnoke::kSignLogTag, pszFolder, pszFileName, nValue); });
}

long CPLMInteract::GetDocSignLogTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pValue) {
    return Guarded(0L, [&] { return varnoke::GetTag(varnoke::kSignLogTag, pszFolder, pszFileName, pValue); });
}

long CPLMInteract::SetDocSignTimeTag(wchar_t* pszFolder, wchar_t* pszFileName) {
    return Guarded(0L, [&] { return varnoke::SetTimeTag(pszFolder, pszFileName); });
}

long CPLMInteract::GetDocSignTimeTag(wchar_t* pszFolder, wchar_t* pszFileName, long* pChanged) {
    return Guarded(0L, [&] { return varnoke::HasChanged(pszFolder, pszFileName, pChanged); });
}

long CPLMInteract::GetDocLastModifyTimeString(wchar_t* pszFolder, wchar_t* pszFileName, wchar_t* pszOut) {
    return Guarded(0L, [&] { return varnoke::CopyModificationTime(pszFolder, pszFileName, pszOut); });
}

long CPLMInteract::UpdateDocsSignTag(SSignFileDUL* pList, long nWithLog) {
    return Guarded(0L, [&] { return varnoke::ResetTags(pList, nWithLog != 0); });
}

long CPLMInteract::UpdateDocsSignTimeTag(SSignFileDUL* pList) {
    return Guarded(0L, [&] { return varnoke::RecordTimes(pList); });
}

long CPLMInteract::WriteDelOrSignLogToLocal(SSignObj* pObj, CString strFolder, CString strKind) {
    return Guarded(
        0L, [&] { return varnoke::WriteDelOrSignLogToLocal(m_modelConfig, pObj, strFolder, strKind); });
}

long CPLMInteract::WriteSignLogToServer(CString strFolder) {
    return Guarded(1L, [&] { return varnoke::WriteSignLogToServer(strFolder); });
}

long CPLMInteract::NotifyPLMSignForBackSignRet(CStringList& signedNames, wchar_t* pszKeyProName,
                                               wchar_t* pszWorkFolder, wchar_t* pszRetFile) {
    return Guarded(0L, [&] {
        return HasText(pszKeyProName) && HasText(pszWorkFolder) && HasText(pszRetFile) &&
               varnoke::WriteReturnFile(signedNames, pszKeyProName, pszWorkFolder, pszRetFile);
    });
}
