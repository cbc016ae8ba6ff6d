// A small host program: a silent signing run over every document of a start-sign message.
// usage: SampleHost MESSAGE-FILE WORK-FOLDER RETURN-FILE
#include <afxwin.h>
#include <afxtempl.h>
#include <oleauto.h>
#include <stdio.h>

#include "varnoke/OwnedRecord.h"
#include "varnoke/Varnoke.h"

namespace {

CWinApp theApp;

wchar_t* InText(const CString& text) {
    return const_cast<wchar_t*>(static_cast<const wchar_t*>(text));
}

void Print(const char* name, const wchar_t* text) {
    char bytes[4096] = {};
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes - 1, nullptr, nullptr);
    printf("%s=%s\n", name, bytes);
}
void Print(const char* name, double number) {
    printf("%s=%g\n", name, number);
}

/// "not": what failed, and why.
int Fail(const char* operation) {
    wchar_t text[1024] = L"";
    long code = 0;
    Cmn_GetLastCause(&code, text, 1024);
    printf("%s failed: cause %ld\n", operation, code);
    Print("cause", text);
    return 1;
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

CString PropertyOf(SSignObj* object, const wchar_t* name) {
    for (POSITION at = object->GetHeadPosition(); at;) {
        const SSignPro* property = object->GetNext(at);
        if (property->m_strName.CompareNoCase(name) == 0) return property->m_strValue;
    }
    return CString();
}

void PrintObjects(const char* name, SSignType& type) {
    Print(name, type.m_strId);
    for (POSITION at = type.m_lstObj.GetHeadPosition(); at;) {
        SSignObj* object = type.m_lstObj.GetNext(at);
        for (POSITION pro = object->GetHeadPosition(); pro;) {
            const SSignPro* property = object->GetNext(pro);
            Print("  property", property->m_strName + L"=" + property->m_strValue);
        }
    }
}

void PrintParameters(const SSignInfo& info) {
#define FIELD(name) Print(#name, info.name)
    FIELD(m_strFirstText), FIELD(m_strSecondText), FIELD(m_strUserName), FIELD(m_strRole),
        FIELD(m_strSealName);
    FIELD(m_dA), FIELD(m_dB), FIELD(m_dC), FIELD(m_dD), FIELD(m_dE), FIELD(m_dF), FIELD(m_dG), FIELD(m_dH);
    FIELD(m_nSealIndex), FIELD(m_strPin), FIELD(m_strDateText), FIELD(m_dDateOffsetX), FIELD(m_dDateOffsetY);
    FIELD(m_dDateFontSize), FIELD(m_nDateTextColor), FIELD(m_strDateFontName), FIELD(m_nReserved1);
    FIELD(m_strDlgDateText), FIELD(m_strDlgDateFormat), FIELD(m_strDlgDateLocation),
        FIELD(m_strDlgDateFontSize);
    FIELD(m_strDlgDateTextColor), FIELD(m_nScope), FIELD(m_nLocationStyle), FIELD(m_dLocationXCheck);
    FIELD(m_dLocationYCheck), FIELD(m_nDateLocationStyle), FIELD(m_dDateLocationXCheck),
        FIELD(m_dDateLocationYCheck);
    FIELD(m_strTempDrawing), FIELD(m_strReserved4);
#undef FIELD
}

/// The drawing that is open. A CAD program has an automation object for it; the signing server asks that
/// program.
struct Drawing : IDispatch {
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return DISP_E_MEMBERNOTFOUND;
    }
};

/// Downloads, signs and uploads one document; false where that ends.
bool SignDocument(CPLMInteract& plm, CSignOpt& signer, SSignObj* document, const CString& folder,
                  const CString& user) {
    SSignFileDULItem item;
    item.m_strLocalName = PropertyOf(document, L"FNAME");
    item.m_strRemoteName = PropertyOf(document, L"LOCATION");
    if (item.m_strRemoteName.IsEmpty()) item.m_strRemoteName = item.m_strLocalName;
    SSignFileDUL list;
    list.m_strFolder = folder;
    list.m_lstItem.AddTail(&item);
    if (!plm.DownloadDocForBackSign(&list)) return Fail("DownloadDocForBackSign") == 0;
    const CString path = folder + L"\\" + item.m_strLocalName;
    SSignInfo* info = nullptr;
    if (!signer.GetSignInfoForBackSign(InText(path), &info)) return Fail("GetSignInfoForBackSign") == 0;
    info->m_strFirstText = PropertyOf(document, L"ID");
    info->m_strUserName = user;
    info->m_strRole = PropertyOf(document, L"SIGN_ROLE");
    PrintParameters(*info);
    Drawing drawing;
    const long isSigned = signer.SignForBackSign(&drawing, info);
    Cmn_ReleaseSignInfo(info);
    if (!isSigned) return Fail("SignForBackSign") == 0;
    plm.SetDocSignTag(InText(folder), InText(item.m_strLocalName), 1);
    plm.WriteDelOrSignLogToLocal(document, folder, L"N");
    Print("state", item.m_nState);
    return plm.UploadDocForBackSign(&list) != 0 || Fail("UploadDocForBackSign") == 0;
}

int Run(const CString& message, const CString& folder, const CString& returnFile) {
    CPLMInteract plm;
    CSignOpt signer;
    plm.Initialize(nullptr);
    if (!signer.Initialize(nullptr)) return Fail("Initialize");
    SLoginInfo* login = nullptr;
    SSignType *steps = nullptr, *documents = nullptr;
    if (!plm.StartSignForBackSign(InText(message), InText(folder), &login, &steps, &documents))
        return Fail("StartSign");
    Print("user", login->m_strUserName);
    Print("password", CString(L'*', login->m_strPassword.GetLength()));
    Print("server", login->m_strPLMServer);
    PrintObjects("steps", *steps);
    PrintObjects("documents", *documents);
    CStringList done;
    if (signer.Login(InText(login->m_strUserName), InText(login->m_strPassword),
                     InText(login->m_strPLMServer))) {
        for (POSITION at = documents->m_lstObj.GetHeadPosition(); at;) {
            SSignObj* document = documents->m_lstObj.GetNext(at);
            if (SignDocument(plm, signer, document, folder, login->m_strUserName))
                done.AddTail(PropertyOf(document, L"FNAME"));
        }
        plm.WriteSignLogToServer(folder); // 0 is success here
    } else {
        Fail("Login");
    }
    const bool told =
        plm.NotifyPLMSignForBackSignRet(done, InText(CString(L"FNAME")), InText(folder), InText(returnFile));
    printf("signed %d of %d\n", static_cast<int>(done.GetCount()),
           static_cast<int>(documents->m_lstObj.GetCount()));
    Cmn_ReleaseSignType(documents);
    Cmn_ReleaseSignType(steps);
    Cmn_ReleaseLoginInfo(login);
    signer.Uninitialize();
    plm.Uninitialize();
    return told ? 0 : Fail("NotifyPLMSignForBackSignRet");
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc != 4 || FAILED(CoInitialize(nullptr)) ||
        !AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), 0))
        return 2;
    LoadLibraryW(L"QORLocal.dll"); // the product's local services: beside them lies the model configuration
    return Run(ReadUtf8(argv[1]), argv[2], argv[3]);
}
