// A small host program: a silent signing run over every document of a start-sign message.
// usage: SampleHost MESSAGE-FILE WORK-FOLDER RETURN-FILE
#include <afxwin.h>
#include <afxtempl.h>

#include "Drawing.h"
#include "PrintRecords.h"
#include "varnoke/OwnedRecord.h"

namespace {

CWinApp theApp;

/// Takes over a record that the library hands out.
template <class Record>
varnoke::OwnedRecord<Record> Own(Record* record) {
    return varnoke::OwnedRecord<Record>(record);
}

wchar_t* InText(const CString& text) {
    return const_cast<wchar_t*>(static_cast<const wchar_t*>(text));
}

/// "not": what failed, and why.
bool Fail(const char* operation) {
    wchar_t text[1024] = L"";
    long code = 0;
    Cmn_GetLastCause(&code, text, 1024);
    printf("%s failed: cause %ld\n", operation, code);
    Print("cause", text);
    return false;
}

CString ReadUtf8(const wchar_t* path) {
    FILE* file = _wfopen(path, L"rb");
    static char bytes[1 << 20];
    const size_t size = file ? fread(bytes, 1, sizeof bytes, file) : 0;
    if (file) fclose(file);
    CString text;
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes, static_cast<int>(size), nullptr, 0);
    MultiByteToWideChar(CP_UTF8, 0, bytes, static_cast<int>(size), text.GetBuffer(length), length);
    text.ReleaseBuffer(length);
    return text;
}

CString PropertyOf(const SSignObj& object, const wchar_t* name) {
    for (const SSignPro* property : varnoke::Elements(object)) {
        if (property->m_strName.CompareNoCase(name) == 0) return property->m_strValue;
    }
    return CString();
}

/// Downloads, signs and uploads one document; false where that ends.
bool SignDocument(CPLMInteract& plm, CSignOpt& signer, SSignObj& document, const CString& folder,
                  const CString& user) {
    auto* item = new SSignFileDULItem;
    item->m_strLocalName = PropertyOf(document, L"FNAME");
    item->m_strRemoteName = PropertyOf(document, L"LOCATION");
    if (item->m_strRemoteName.IsEmpty()) item->m_strRemoteName = item->m_strLocalName;
    const auto list = Own(new SSignFileDUL);
    list->m_strFolder = folder;
    list->m_lstItem.AddTail(item);
    if (!plm.DownloadDocForBackSign(list.get())) return Fail("DownloadDocForBackSign");

    SSignInfo* made = nullptr;
    if (!signer.GetSignInfoForBackSign(InText(folder + L"\\" + item->m_strLocalName), &made))
        return Fail("GetSignInfoForBackSign");
    const auto info = Own(made);
    info->m_strFirstText = PropertyOf(document, L"ID");
    info->m_strUserName = user;
    info->m_strRole = PropertyOf(document, L"SIGN_ROLE");
    Print(*info);
    Drawing drawing;
    if (!signer.SignForBackSign(&drawing, info.get())) return Fail("SignForBackSign");
    if (!plm.UploadDocForBackSign(list.get())) return Fail("UploadDocForBackSign");
    // Only now: tags and log must not tell of a signature that the server doesn't have.
    plm.SetDocSignTag(InText(folder), InText(item->m_strLocalName), 1);
    if (!plm.WriteDelOrSignLogToLocal(&document, folder, L"N")) Fail("WriteDelOrSignLogToLocal");
    return true;
}

bool Run(CPLMInteract& plm, CSignOpt& signer, const CString& message, const CString& folder,
         const CString& returnFile) {
    SLoginInfo* madeLogin = nullptr;
    SSignType *madeSteps = nullptr, *madeDocuments = nullptr;
    if (!plm.StartSignForBackSign(InText(message), InText(folder), &madeLogin, &madeSteps, &madeDocuments))
        return Fail("StartSignForBackSign");
    const auto login = Own(madeLogin);
    const auto steps = Own(madeSteps), documents = Own(madeDocuments);
    Print(*login);
    Print("steps", *steps);
    Print("documents", *documents);
    const bool loggedIn = signer.Login(InText(login->m_strUserName), InText(login->m_strPassword),
                                       InText(login->m_strPLMServer)) ||
                          Fail("Login");
    CStringList done;
    for (SSignObj* document : varnoke::Elements(documents->m_lstObj)) {
        if (loggedIn && SignDocument(plm, signer, *document, folder, login->m_strUserName))
            done.AddTail(PropertyOf(*document, L"FNAME"));
    }
    if (plm.WriteSignLogToServer(folder) != 0) Fail("WriteSignLogToServer"); // 0 is success here
    printf("signed %d of %d\n", int(done.GetCount()), int(documents->m_lstObj.GetCount()));
    return plm.NotifyPLMSignForBackSignRet(done, InText(CString(L"FNAME")), InText(folder),
                                           InText(returnFile)) ||
           Fail("NotifyPLMSignForBackSignRet");
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc != 4 || FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    LoadLibraryW(L"QORLocal.dll"); // the product's local services: beside them lies the model configuration
    CPLMInteract plm;
    CSignOpt signer;
    const bool done = plm.Initialize(nullptr) && signer.Initialize(nullptr)
                          ? Run(plm, signer, ReadUtf8(argv[1]), argv[2], argv[3])
                          : Fail("Initialize");
    signer.Uninitialize();
    plm.Uninitialize();
    return done ? 0 : 1;
}
