// A silent run with one failing call. Each step starts from a sound folder; whatever fails, its file must
// afterwards be the one from before or, if the step said so, the one it should have made.
#include "tests/soak/FaultRun.h"

#include <windows.h>

#include <cstdio>
#include <cwchar>

#include "tests/soak/FaultPoints.h"
#include "tests/soak/Readers.h"
#include "tests/soak/Workplace.h"
#include "tests/support/Message.h"

namespace soak {

namespace {

constexpr wchar_t kDocument[] = L"a.dwg";

/// One operation of the library and the file that it rewrites.
struct Step {
    const char* name;
    const wchar_t* file; ///< in the current folder
    bool (*run)(Library& library);
    bool (*isNew)(Library& library); ///< without faults: whether the file has what the step should have made
};

std::wstring g_folder;
std::wstring g_message;

bool Start(Library& library, bool merge) {
    Records records;
    std::wstring text = g_message;
    const auto operation =
        merge ? &CPLMInteract::AppendParserStartSignXmlString : &CPLMInteract::StartSignForBackSign;
    const long result = (library.plm.*operation)(text.data(), g_folder.data(), &records.login, &records.steps,
                                                 &records.files);
    const bool any = records.login || records.steps || records.files;
    if (!result && any) Stop("records were handed out by a failed operation");
    if (result && !(records.login && records.steps && records.files))
        Stop("a successful operation handed out nothing");
    return result != 0;
}

bool StartNew(Library& library) {
    return Start(library, false);
}

bool MergeFurther(Library& library) {
    return Start(library, true);
}

bool Keeps(const wchar_t* file, const char* what) {
    return ReadAll(Path(file)).find(what) != std::string::npos;
}

bool SetTag(Library& library) {
    wchar_t name[] = L"a.dwg";
    return library.plm.SetDocSignTag(g_folder.data(), name, 7) != 0;
}

bool HasTag(Library& library) {
    wchar_t name[] = L"a.dwg";
    long value = 0;
    return library.plm.GetDocSignTag(g_folder.data(), name, &value) && value == 7;
}

bool WriteLog(Library& library) {
    SSignPro id = {L"ID", L"NEW-ENTRY"}, role = {L"SIGN_ROLE", L"审核"};
    SSignObj object;
    object.AddTail(&id);
    object.AddTail(&role);
    return library.plm.WriteDelOrSignLogToLocal(&object, g_folder.c_str(), L"N") != 0;
}

bool Notify(Library& library) {
    CStringList names;
    names.AddTail(kDocument);
    wchar_t key[] = L"FNAME";
    std::wstring file = Path(L"back.xml");
    return library.plm.NotifyPLMSignForBackSignRet(names, key, g_folder.data(), file.data()) != 0;
}

bool Transfer(Library& library) {
    SSignFileDULItem item = {kDocument, kDocument};
    SSignFileDUL list;
    list.m_strFolder = g_folder.c_str();
    list.m_lstItem.AddTail(&item);
    return library.plm.DownloadDocForBackSign(&list) != 0 && item.m_nState == 1;
}

bool Connect(Library&) {
    CSignOpt other;
    wchar_t user[] = L"wang", password[] = L"p", server[] = L"s";
    const bool logged = other.Initialize(nullptr) && other.Login(user, password, server);
    other.Uninitialize();
    return logged;
}

bool Always(Library&) {
    return true;
}

const Step kSteps[] = {
    {"start", L"work\\SignData\\StartSign.Xml", &StartNew,
     [](Library&) { return Keeps(L"work\\SignData\\StartSign.Xml", "further.dwg"); }},
    {"merge", L"work\\SignData\\StartSign.Xml", &MergeFurther,
     [](Library&) { return Keeps(L"work\\SignData\\StartSign.Xml", "further.dwg"); }},
    {"tag", L"work\\SignData\\DocSignTag.ini", &SetTag, &HasTag},
    {"log", L"work\\SignData\\DocSignRecord.xml", &WriteLog,
     [](Library&) { return Keeps(L"work\\SignData\\DocSignRecord.xml", "NEW-ENTRY"); }},
    {"notify", L"back_Ret.Xml", &Notify,
     [](Library&) { return Keeps(L"back_Ret.Xml", "SignRet\" value=\"1"); }},
    {"download", L"work\\a.dwg", &Transfer, [](Library&) { return Keeps(L"work\\a.dwg", "drawing"); }},
    {"login", nullptr, &Connect, &Always},
};

std::wstring MessageOf(const wchar_t* document) {
    return tests::Message(std::wstring(L"LoginInfo:UserName=wang,Password=p,PLMServer=s|step:STEP=1|DOC:") +
                          document);
}

/// The folder as an earlier run left it: every file of the steps is there and sound.
void Prepare(Library& library) {
    // What a failed deletion left: the library removes it once this process has ended.
    for (const wchar_t* folder : {L".\\", L"work\\", L"work\\SignData\\"})
        DeleteAll(Path(folder), L"~varnoke-*");
    g_message = MessageOf(kDocument);
    WriteAll(Path(L"vault\\files\\a.dwg"), "a drawing");
    WriteAll(Path(L"work\\a.dwg"), "old");
    if (!Start(library, false) || !Notify(library)) Stop("the folder cannot be prepared");
    WriteAll(Path(L"work\\SignData\\DocSignTag.ini"), "[DocSignTag]\r\na.dwg=1\r\n");
    WriteAll(Path(L"work\\SignData\\DocSignRecord.xml"),
             ReadAll(ProgramFolder() + L"samples\\DocSignRecord.xml"));
    WriteAll(Path(L"back_Ret.Xml"), "<old/>");
    g_message = MessageOf(L"further.dwg");
}

void Check(Library& library, const Step& step, long call, bool done, const std::string& before) {
    if (!step.file) return;
    const bool isNew = step.isNew(library);
    if (done && !isNew) Stop("%s, call %ld: said to be done, and is not", step.name, call);
    if (!isNew && ReadAll(Path(step.file)) != before) {
        Stop("%s, call %ld: the file is neither the old nor the new one", step.name, call);
    }
}

long RunStep(Library& library, const Step& step) {
    for (long call = 1;; ++call) {
        Prepare(library);
        if (&step == &kSteps[4]) g_message = MessageOf(kDocument);
        const std::string before = step.file ? ReadAll(Path(step.file)) : std::string();
        FaultPoints::Arm(call);
        const bool done = step.run(library);
        const bool came = FaultPoints::Disarm();
        Check(library, step, call, done, before);
        if (!came && !done) Stop("%s: fails without a fault", step.name);
        if (!came) return call - 1;
    }
}

} // namespace

void RunFaults() {
    g_folder = Path(L"work");
    Library library;
    FaultPoints::Install();
    for (const Step& step : kSteps) {
        std::printf("%s: each of its %ld calls failed once\n", step.name, RunStep(library, step));
        std::fflush(stdout);
    }
}

} // namespace soak
