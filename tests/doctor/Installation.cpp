#include "tests/doctor/Installation.h"

namespace fs = std::filesystem;

namespace tests {

RegisteredKey::RegisteredKey(const std::wstring& key, const std::wstring& value)
    : m_key(L"Software\\Classes\\" + key) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, m_key.c_str(), nullptr, REG_SZ, value.c_str(),
                    static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
}

RegisteredKey::~RegisteredKey() {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, m_key.c_str());
}

Listener::Listener() {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
    m_socket = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    bind(m_socket, reinterpret_cast<sockaddr*>(&address), size);
    listen(m_socket, SOMAXCONN);
    getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size);
    m_port = ntohs(address.sin_port);
}

Listener::~Listener() {
    closesocket(m_socket);
    WSACleanup();
}

Installation::Installation() {
    const fs::path built = BinFolder();
    for (const fs::path& folder : {m_app, m_vault, m_work / L"SignData"})
        fs::create_directories(folder);
    for (const wchar_t* name :
         {L"Varnoke.dll", L"Durvell.dll", L"QORParser.dll", L"QORLocal.dll", L"varnoke-doctor.exe"})
        fs::copy_file(built / name, m_app / name);
    WriteBytes(m_app / L"ModelConfig.Xml", ReadBytes(built / L"samples" / L"ModelConfig.Xml"));
    WriteBytes(m_app / L"Varnoke.ini", "\xFF\xFE");
    Set(L"SignServer", L"ServerPort", std::to_wstring(m_listener.Port()));
    WriteBytes(m_vault / L"session.ini", "[Session]\r\nUserName=wang\r\nPassword=p\r\nServer=plm\r\n");
    WriteBytes(m_work / L"SignData" / L"DocSignRecord.xml", "<root/>");
    SetEnvironmentVariableW(L"VARNOKE_LANGUAGE", L"en");
    SetEnvironmentVariableW(L"DURVELL_VAULT", m_vault.c_str());
    SetEnvironmentVariableW(L"SIGNSERVER_JOURNAL", (m_folder / L"sign.log").c_str());
}

Installation::~Installation() {
    for (const wchar_t* name :
         {L"VARNOKE_LANGUAGE", L"DURVELL_VAULT", L"SIGNSERVER_JOURNAL", L"SIGNSERVER_FAULT"})
        SetEnvironmentVariableW(name, nullptr);
}

void Installation::Set(const wchar_t* section, const wchar_t* key, const std::wstring& value) const {
    WritePrivateProfileStringW(section, key, value.c_str(), File(L"Varnoke.ini").c_str());
}

void Installation::Patch(const wchar_t* name, const std::string& from, const std::string& to) const {
    std::string bytes = ReadBytes(File(name));
    for (size_t at = 0; (at = bytes.find(from, at)) != std::string::npos; at += to.size())
        bytes.replace(at, from.size(), to);
    WriteBytes(File(name), bytes);
}

HostResult Installation::Examine(std::vector<std::wstring> further) const {
    const std::vector<std::wstring> always = {L"--json", L"--timeout", L"2"};
    further.insert(further.begin(), always.begin(), always.end());
    return RunProgram(File(L"varnoke-doctor.exe"), further);
}

} // namespace tests
