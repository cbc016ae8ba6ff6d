// The record is written as text, in the form that the parser library gives it.
#include <afxwin.h>

#include "bench/LogMeasure.h"
#include "bench/BareParser.h"
#include "bench/Stopwatch.h"
#include "varnoke/OwnedRecord.h"

namespace bench {

namespace {

constexpr const wchar_t* kNames[] = {L"DOC_NAME", L"DOC_VERSION", L"SIGN_USER", L"SIGN_ROLE", L"SIGN_DATE",
                                     L"ID",       L"QORMFILEID",  L"QORMROLE",  L"QORMTYPE",  L"SIGNSTATE"};

std::wstring Properties(const std::wstring& entry) {
    std::wstring text;
    for (const wchar_t* name : kNames) {
        const bool kind = wcscmp(name, L"QORMTYPE") == 0 || wcscmp(name, L"SIGNSTATE") == 0;
        text += std::wstring(L"<pro name=\"") + name + L"\" value=\"" + (kind ? L"N" : entry) + L"\"/>";
    }
    return text;
}

std::wstring RecordText(int entries) {
    std::wstring text = L"<qordata>";
    for (int number = 0; number < entries; ++number) {
        const std::wstring properties = Properties(L"entry" + std::to_wstring(number));
        text += L"<obj type=\"IQORM_OBJ_SIGN\" state=\"N\">" + properties;
        text += L"<local>" + properties + L"</local></obj>";
    }
    return text + L"</qordata>";
}

} // namespace

void MeasureLogging(const Workspace& workspace, CPLMInteract& interact, int entries, double& bare,
                    double& logging) {
    const std::wstring text = RecordText(entries);
    bare = Milliseconds([&] { SaveBare(LoadBare(text), workspace.Path(L"bare.xml")); });

    const std::wstring signData = workspace.Path(L"SignData");
    ::CreateDirectoryW(signData.c_str(), nullptr);
    SaveBare(LoadBare(text), signData + L"\\DocSignRecord.xml");
    const varnoke::OwnedRecord<SSignObj> object(new SSignObj);
    object->AddTail(new SSignPro{L"ID", L"new"});
    object->AddTail(new SSignPro{L"SIGN_ROLE", L"role"});
    logging = Milliseconds([&] {
        Require(interact.WriteDelOrSignLogToLocal(object.get(), workspace.Path().c_str(), L"N") == 1,
                "writing a log entry");
    });
}

} // namespace bench
