// Ground for runs of the reference host.
#include "tests/host/HostFixture.h"

#include <windows.h>

#include <sstream>

#include "tests/support/Message.h"

namespace fs = std::filesystem;

namespace tests {

namespace {

int CountLines(const fs::path& file, const std::string& call, const std::string& containing) {
    if (!fs::exists(file)) return 0;
    std::istringstream lines(ReadBytes(file));
    int count = 0;
    for (std::string line; std::getline(lines, line);)
        if (line.find("\t" + call + "\t") != std::string::npos && line.find(containing) != std::string::npos)
            ++count;
    return count;
}

} // namespace

HostTest::HostTest() {
    fs::create_directories(m_vault / L"files");
    fs::create_directory(m_work);
    WriteBytes(m_vault / L"session.ini", "[Session]\r\nUserName=wang\r\nPassword=p\r\nServer=plm\r\n");
    SetEnvironmentVariableW(L"VARNOKE_LANGUAGE", L"en");
    SetEnvironmentVariableW(L"SIGNSERVER_JOURNAL", (m_folder / L"sign.log").c_str());
}

HostTest::~HostTest() {
    for (const wchar_t* name : {L"VARNOKE_LANGUAGE", L"SIGNSERVER_JOURNAL", L"SIGNSERVER_FAULT"})
        SetEnvironmentVariableW(name, nullptr);
}

void HostTest::Store(const std::wstring& remote) const {
    WriteBytes(m_vault / L"files" / remote, "AC1015 drawing");
}

std::wstring HostTest::MessageText(const std::vector<TestDocument>& documents,
                                   const std::wstring& declaration) {
    std::wstring objects;
    int number = 0;
    for (const TestDocument& document : documents)
        objects += L"ID=D" + std::to_wstring(++number) + L",FNAME=" + document.name +
                   (document.remote.empty() ? L"" : L",LOCATION=" + document.remote) +
                   L",SIGN_ROLE=校对,SIGN_USER=;";
    return declaration +
           Message(L"LoginInfo:UserName=wang,Password=secret,PLMServer=plm|step:STEPID=S1|DRAWING:" +
                   objects);
}

void HostTest::Prepare(const std::vector<TestDocument>& documents) const {
    WriteBytes(m_message, ToUtf8(MessageText(documents)));
    for (const TestDocument& document : documents)
        Store(document.remote.empty() ? document.name : document.remote);
}

void HostTest::Fault(const wchar_t* key, const wchar_t* value) const {
    WritePrivateProfileStringW(L"Fault", key, value, (m_vault / L"Durvell.ini").c_str());
}

HostResult HostTest::Run(const wchar_t* command, const std::vector<std::wstring>& further,
                         const std::function<void(DWORD)>& whileRunning) const {
    std::vector<std::wstring> arguments = {command, L"--message", m_message, L"--vault",
                                           m_vault, L"--work",    m_work};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return RunHost(arguments, whileRunning);
}

HostResult HostTest::BackSign(const std::vector<std::wstring>& further,
                              const std::function<void(DWORD)>& whileRunning) const {
    std::vector<std::wstring> arguments = {L"--return", m_return};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return Run(L"back-sign", arguments, whileRunning);
}

std::string HostTest::ReturnValues() const {
    const std::string text = fs::exists(m_returned) ? ReadBytes(m_returned) : "";
    const std::string mark = "name=\"SignRet\" value=\"";
    std::string values;
    for (size_t at = 0; (at = text.find(mark, at)) != std::string::npos;)
        values += text[at += mark.size()];
    return values;
}

long HostTest::Tag(const wchar_t* tag, const wchar_t* document) const {
    const fs::path file = m_work / L"SignData" / (std::wstring(tag) + L".ini");
    return static_cast<long>(GetPrivateProfileIntW(tag, document, -1, file.c_str()));
}

int HostTest::Calls(const char* call, const std::string& containing) const {
    return CountLines(m_vault / L"journal.log", call, containing);
}

int HostTest::SignCalls(const char* call, const std::string& containing) const {
    return CountLines(m_folder / L"sign.log", call, containing);
}

bool HostTest::ServerLogged(const std::string& id, const std::string& role) const {
    if (!fs::exists(m_vault / L"signlog")) return false;
    for (const auto& entry : fs::directory_iterator(m_vault / L"signlog")) {
        const std::string record = ReadBytes(entry.path());
        const size_t at = record.find("name=\"QORMFILEID\" value=\"" + id + "\"");
        if (at == std::string::npos || record.find("name=\"USERNAME\" value=\"wang\"", at) == record.npos)
            continue;
        const size_t value = record.find("value=\"", record.find("name=\"QORMROLE\"", at));
        return role.empty() || record.compare(value + 7, role.size(), role) == 0;
    }
    return false;
}

std::set<std::string> HostTest::Snapshot() const {
    std::set<std::string> entries;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path()))
        entries.insert(ToUtf8(entry.path().wstring()) + " " +
                       std::to_string(GetFileAttributesW(entry.path().c_str())) + " " +
                       (entry.is_regular_file() ? ReadBytes(entry.path()) : ""));
    return entries;
}

} // namespace tests
