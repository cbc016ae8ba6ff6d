// Ground for runs of the reference host.
#include "tests/host/HostFixture.h"

#include <windows.h>

#include <algorithm>
#include <sstream>

namespace fs = std::filesystem;

namespace tests {

namespace {

std::wstring Property(const std::wstring& name, std::wstring value) {
    for (size_t at = 0; (at = value.find(L'&', at)) != std::wstring::npos; at += 5)
        value.replace(at, 1, L"&amp;");
    return L"<pro name=\"" + name + L"\" value=\"" + value + L"\"/>";
}

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
    fs::create_directories(Vault() / L"files");
    fs::create_directory(Work());
    WriteBytes(Vault() / L"session.ini", "[Session]\r\nUserName=wang\r\nPassword=p\r\nServer=plm\r\n");
    SetEnvironmentVariableW(L"VARNOKE_LANGUAGE", L"en");
    SetEnvironmentVariableW(L"SIGNSERVER_JOURNAL", (m_folder / L"sign.log").c_str());
}

HostTest::~HostTest() {
    for (const wchar_t* name : {L"VARNOKE_LANGUAGE", L"SIGNSERVER_JOURNAL", L"SIGNSERVER_FAULT"})
        SetEnvironmentVariableW(name, nullptr);
}

void HostTest::Store(const std::wstring& remote, const std::string& bytes) const {
    WriteBytes(Vault() / L"files" / remote, bytes);
}

std::string HostTest::Stored(const std::wstring& remote) const {
    return ReadBytes(Vault() / L"files" / remote);
}

std::wstring HostTest::MessageText(const std::vector<TestDocument>& documents,
                                   const std::wstring& declaration) {
    std::wstring objects;
    int number = 0;
    for (const TestDocument& document : documents) {
        objects +=
            L"<obj>" + Property(L"ID", L"D" + std::to_wstring(++number)) + Property(L"FNAME", document.name);
        if (!document.remote.empty()) objects += Property(L"LOCATION", document.remote);
        objects += Property(L"SIGN_ROLE", L"校对") + L"</obj>";
    }
    return declaration + L"<root><objs><type id=\"LoginInfo\"><obj>" + Property(L"UserName", L"wang") +
           Property(L"Password", L"secret") + Property(L"PLMServer", L"plm") +
           L"</obj></type><type id=\"step\"><obj>" + Property(L"STEPID", L"S1") +
           L"</obj></type><type id=\"DRAWING\">" + objects + L"</type></objs></root>";
}

void HostTest::Prepare(const std::vector<TestDocument>& documents) const {
    WriteBytes(Message(), ToUtf8(MessageText(documents)));
    for (const TestDocument& document : documents)
        Store(document.remote.empty() ? document.name : document.remote);
}

void HostTest::Fault(const wchar_t* key, const wchar_t* value) const {
    WritePrivateProfileStringW(L"Fault", key, value, (Vault() / L"Durvell.ini").c_str());
}

HostResult HostTest::BackSign(const std::vector<std::wstring>& further,
                              const std::function<void(DWORD)>& whileRunning) const {
    std::vector<std::wstring> arguments = {
        L"back-sign",     L"--message",      Message().wstring(),
        L"--vault",       Vault().wstring(), L"--work",
        Work().wstring(), L"--return",       (m_folder / L"ret.xml").wstring()};
    arguments.insert(arguments.end(), further.begin(), further.end());
    return RunHost(arguments, whileRunning);
}

std::string HostTest::ReturnValues() const {
    if (!fs::exists(ReturnFile())) return "";
    const std::string text = ReadBytes(ReturnFile());
    const std::string mark = "name=\"SignRet\" value=\"";
    std::string values;
    for (size_t at = 0; (at = text.find(mark, at)) != std::string::npos; at += mark.size())
        values += text.substr(at + mark.size(), 1);
    return values;
}

long HostTest::Tag(const wchar_t* tag, const wchar_t* document) const {
    const fs::path file = Work() / L"SignData" / (std::wstring(tag) + L".ini");
    return static_cast<long>(GetPrivateProfileIntW(tag, document, -1, file.c_str()));
}

int HostTest::Calls(const char* call, const std::string& containing) const {
    return CountLines(Vault() / L"journal.log", call, containing);
}

int HostTest::SignCalls(const char* call, const std::string& containing) const {
    return CountLines(m_folder / L"sign.log", call, containing);
}

bool HostTest::ServerLogged(const std::string& id) const {
    if (!fs::exists(Vault() / L"signlog")) return false;
    for (const auto& entry : fs::directory_iterator(Vault() / L"signlog"))
        if (ReadBytes(entry.path()).find("name=\"QORMFILEID\" value=\"" + id + "\"") != std::string::npos)
            return true;
    return false;
}

std::string HostTest::Snapshot() const {
    std::vector<std::string> entries;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path())) {
        std::string line = ToUtf8(entry.path().wstring()) + " " +
                           std::to_string(GetFileAttributesW(entry.path().c_str())) + " ";
        if (entry.is_regular_file()) line += ReadBytes(entry.path());
        entries.push_back(line);
    }
    std::sort(entries.begin(), entries.end());
    std::string all;
    for (const std::string& entry : entries)
        all += entry + "\n";
    return all;
}

} // namespace tests
