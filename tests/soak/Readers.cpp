// Everything that reads what comes from outside. The results don't matter here: crashes, hangs and leaks do.
#include "tests/soak/Readers.h"

#include <comdef.h>

#include <vector>

#include "neighbours/DwgViewerIds.h"
#include "tests/soak/Workplace.h"

namespace soak {

namespace {

std::wstring SignData(const wchar_t* name) {
    const std::wstring folder = Path(L"work\\SignData");
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"\\" + name;
}

void ReadMessage(Library& library, const std::string& bytes) {
    Records records;
    std::wstring text = FromUtf8(bytes), folder = Path(L"work");
    library.plm.StartSignForBackSign(text.data(), folder.data(), &records.login, &records.steps,
                                     &records.files);
}

void ReadKeptMessage(Library& library, const std::string& bytes) {
    WriteAll(SignData(L"StartSign.Xml"), bytes);
    Records records;
    std::wstring text = FromUtf8(ReadAll(Path(L"message-append.xml"))), folder = Path(L"work");
    library.plm.AppendParserStartSignXmlString(text.data(), folder.data(), &records.login, &records.steps,
                                               &records.files);
}

void ReadRecord(Library& library, const std::string& bytes) {
    WriteAll(SignData(L"DocSignRecord.xml"), bytes);
    SSignPro id = {L"ID", L"DOC-1"}, role = {L"SIGN_ROLE", L"审核"};
    SSignObj object;
    object.AddTail(&id);
    object.AddTail(&role);
    library.plm.WriteDelOrSignLogToLocal(&object, Path(L"work").c_str(), bytes.size() % 2 ? L"N" : L"D");
    DeleteAll(SignData(L""), L"*unread*");
}

void ReadSettings(Library& library, const std::string& bytes) {
    WriteAll(ProgramFolder() + L"Varnoke.ini", bytes);
    SSignInfo* info = nullptr;
    std::wstring document = Path(L"work\\a.dwg");
    library.signOpt.GetSignInfoForBackSign(document.data(), &info);
    Cmn_ReleaseSignInfo(info);
    std::vector<wchar_t> date(4096);
    library.signOpt.GetCancelSignDate(date.data());
}

void ReadQueryResult(Library& library, const std::string& bytes) {
    const std::wstring file = Path(L"USER.Xml");
    WriteAll(file, bytes);
    library.plm.GetProValue(file.c_str(), L"SIGNFILE");
}

void ReadTags(Library& library, const std::string& bytes) {
    WriteAll(SignData(L"DocSignTag.ini"), bytes);
    std::wstring folder = Path(L"work"), name = L"图纸1.dwg";
    long value = 0;
    library.plm.GetDocSignTag(folder.data(), name.data(), &value);
    library.plm.SetDocSignTag(folder.data(), name.data(), value + 1);
}

void ReadPreview(Library&, const std::string& bytes) {
    const std::wstring file = Path(L"preview.dwg");
    WriteAll(file, bytes);
    _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>> viewer;
    if (FAILED(viewer.CreateInstance(varnoke::kDwgViewerClass))) Stop("there is no viewer");
    _variant_t path(file.c_str()), result;
    DISPPARAMS parameters = {&path, nullptr, 1, 0};
    viewer->Invoke(varnoke::kDwgViewerOpen, IID_NULL, 0, DISPATCH_METHOD, &parameters, &result, nullptr,
                   nullptr);
}

constexpr char kTags[] = "[DocSignTag]\r\nb.dwg=1\r\n; note\r\n\xCD\xBC\xD6\xBD"
                         "1.dwg=2\r\n\r\n[Other]\r\nx=y\r\n";

} // namespace

Library::Library() {
    ::LoadLibraryW((ProgramFolder() + L"QORLocal.dll").c_str()); // beside it lies the model configuration
    if (!plm.Initialize(nullptr)) Stop("there is no model configuration");
    signOpt.Initialize(nullptr);
}

Library::~Library() {
    signOpt.Uninitialize();
    plm.Uninitialize();
}

std::vector<Reader> Readers() {
    const std::string message = ReadAll(Path(L"message.xml"));
    return {
        {"message", message, &ReadMessage},
        {"kept message", message, &ReadKeptMessage},
        {"record", ReadAll(ProgramFolder() + L"samples\\DocSignRecord.xml"), &ReadRecord},
        {"settings", ReadAll(Path(L"Varnoke.ini")), &ReadSettings},
        {"query result", ReadAll(Path(L"vault\\objects\\USER.xml")), &ReadQueryResult},
        {"tags", kTags, &ReadTags},
        {"preview", ReadAll(Path(L"sample.dwg")), &ReadPreview},
    };
}

} // namespace soak
