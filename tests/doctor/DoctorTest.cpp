// The doctor finds nothing wrong in a good installation, and each fault by its own reason code.
#include <gtest/gtest.h>

#include <memory>

#include "tests/doctor/Installation.h"

namespace fs = std::filesystem;

namespace tests {

namespace {

constexpr wchar_t kClass[] = L"{5C2E6A51-7F0E-4E0B-9B7B-0A3D5B1E7C11}";

// What a fault keeps alive while the doctor looks.
struct Remains {
    std::vector<std::shared_ptr<void>> kept;

    void Register(const std::wstring& key, const std::wstring& value) {
        kept.push_back(std::make_shared<RegisteredKey>(key, value));
    }
    // A ProgID of the test's own, with its class below the given root.
    void RegisterServer(const Installation& at, const std::wstring& root, const std::wstring& server,
                        const std::wstring& file) {
        Register(L"Varnoke.DoctorTest", L"");
        Register(L"Varnoke.DoctorTest\\CLSID", kClass);
        Register(root + L"CLSID\\" + kClass, L"");
        Register(root + L"CLSID\\" + kClass + L"\\" + server, file);
        at.Set(L"DynDisp", L"ProgID", L"Varnoke.DoctorTest");
    }
    void Hold(const fs::path& file) {
        kept.emplace_back(
            CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr),
            CloseHandle);
    }
};

struct Fault {
    const char* code;
    const char* subject; // a part of it
    void (*make)(Installation&, Remains&);
    std::vector<std::wstring> options = {};
};

const Fault kFaults[] = {
    {"file.missing", "Varnoke.dll", [](Installation& at, Remains&) { fs::remove(at.File(L"Varnoke.dll")); }},
    {"file.missing", "Durvell.dll", [](Installation& at, Remains&) { fs::remove(at.File(L"Durvell.dll")); }},
    {"file.damaged", "QORParser.dll",
     [](Installation& at, Remains&) { WriteBytes(at.File(L"QORParser.dll"), "MZ and no more"); }},
    {"file.wrong-bits", "QORLocal.dll",
     [](Installation& at, Remains&) {
         at.Patch(L"QORLocal.dll", {"PE\0\0\x64\x86", 6}, {"PE\0\0\x4C\x01", 6});
     }},
    {"file.import-missing", "Durvell.dll",
     [](Installation& at, Remains&) { at.Patch(L"Durvell.dll", "vcruntime140.dll", "vcruntime14x.dll"); }},
    {"file.function-missing", "Durvell.dll",
     [](Installation& at, Remains&) {
         fs::remove(at.File(L"Durvell.dll"));
         fs::copy_file(at.File(L"QORLocal.dll"), at.File(L"Durvell.dll"));
     }},
    {"settings.unreadable", "Varnoke.ini",
     [](Installation& at, Remains&) {
         fs::remove(at.File(L"Varnoke.ini"));
         fs::create_directory(at.File(L"Varnoke.ini"));
     }},
    {"settings.encoding", "Varnoke.ini",
     [](Installation& at, Remains&) {
         WriteBytes(at.File(L"Varnoke.ini"),
                    "[SignDate]\r\nDateFontName=楷体仿宋\r\n[SignServer]\r\nServerPort=" +
                        std::to_string(at.m_listener.Port()) + "\r\n");
     }},
    {"settings.unknown-section", "SingServer",
     [](Installation& at, Remains&) { at.Set(L"SingServer", L"ServerIP", L"1.2.3.4"); }},
    {"settings.unknown-key", "[SignServer] ServreIP",
     [](Installation& at, Remains&) { at.Set(L"SignServer", L"ServreIP", L"1.2.3.4"); }},
    {"settings.bad-value", "[SignScope] Scope",
     [](Installation& at, Remains&) { at.Set(L"SignScope", L"Scope", L"4"); }},
    {"settings.read-only", "Varnoke.ini",
     [](Installation& at, Remains& to) { to.Hold(at.File(L"Varnoke.ini")); }},
    {"progid.not-registered", "Nobody.Knows",
     [](Installation& at, Remains&) { at.Set(L"DynDisp", L"ProgID", L"Nobody.Knows"); }},
    {"progid.32-bit-only", "Varnoke.DoctorTest",
     [](Installation& at, Remains& to) {
         to.RegisterServer(at, L"Wow6432Node\\", L"InprocServer32", L"C:\\sign.dll");
     }},
    {"progid.no-server", "Varnoke.DoctorTest",
     [](Installation& at, Remains& to) { to.RegisterServer(at, L"", L"LocalServer32", L"C:\\sign.exe"); }},
    {"progid.file-missing", "Varnoke.DoctorTest",
     [](Installation& at, Remains& to) {
         to.RegisterServer(at, L"", L"InprocServer32", L"C:\\no\\sign.dll");
     }},
    {"progid.create-failed", "Varnoke.DoctorTest",
     [](Installation& at, Remains& to) {
         to.RegisterServer(at, L"", L"InprocServer32", at.File(L"Durvell.dll").wstring());
     }},
    {"method.missing", "Sign", [](Installation& at, Remains&) { at.Set(L"DynDisp", L"Sign", L"Sgin"); }},
    {"server.refused", "127.0.0.1:1",
     [](Installation& at, Remains&) { at.Set(L"SignServer", L"ServerPort", L"1"); }},
    {"server.unknown", "no.such.host.invalid",
     [](Installation& at, Remains&) { at.Set(L"SignServer", L"ServerIP", L"no.such.host.invalid"); }},
    {"login.refused",
     "wang",
     [](Installation&, Remains&) { SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Login"); },
     {L"--login"}},
    {"probe.crashed",
     "Brevanix.Brevanix0",
     [](Installation&, Remains&) { SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Crash"); },
     {L"--login"}},
    {"login.no-session",
     "Durvell.dll",
     [](Installation& at, Remains&) { fs::remove(at.m_vault / L"session.ini"); },
     {L"--login"}},
    {"model.missing", "ModelConfig.Xml",
     [](Installation& at, Remains&) { fs::remove(at.File(L"ModelConfig.Xml")); }},
    {"model.broken", "ModelConfig.Xml",
     [](Installation& at, Remains&) { WriteBytes(at.File(L"ModelConfig.Xml"), "<root><"); }},
    {"model.part-missing", "DesignDoMain",
     [](Installation& at, Remains&) { at.Set(L"SignLog", L"DesignDoMain", L"nowhere"); }},
    {"work.missing", "nowhere", [](Installation& at, Remains&) { fs::remove_all(at.m_work); }},
    {"work.locked", "DocSignRecord.xml",
     [](Installation& at, Remains& to) { to.Hold(at.m_work / L"SignData" / L"DocSignRecord.xml"); }},
};

// The report's lines of a level other than "ok".
std::vector<std::string> Complaints(const HostResult& report) {
    std::vector<std::string> lines;
    for (size_t start = 0, end; (end = report.out.find("\r\n", start)) != std::string::npos;
         start = end + 2) {
        const std::string line = report.out.substr(start, end - start);
        if (line.find("{\"level\":\"ok\"") != 0) lines.push_back(line);
    }
    return lines;
}

std::vector<std::wstring> WorkOptions(const Installation& at, std::vector<std::wstring> options) {
    for (const wchar_t* option : {L"--allow-standins", L"--work"})
        options.push_back(option);
    options.push_back(fs::exists(at.m_work) ? at.m_work.wstring() : L"nowhere");
    return options;
}

TEST(Doctor, GoodInstallation_HasNoComplaints) {
    const Installation at;
    at.Set(L"Settings", L"UserLayer", L"1");
    SetEnvironmentVariableW(L"APPDATA", at.m_folder.Text().c_str());
    WriteBytes(at.m_folder / L"Varnoke" / L"Varnoke.ini", "[SignScope]\r\nScope=3\r\n[DynDisp]\r\nProgID=x");
    const HostResult report = at.Examine(WorkOptions(at, {L"--login"}));
    EXPECT_NE(std::string::npos, report.out.find("3  (the user's Varnoke.ini)")) << report.Text();
    EXPECT_EQ(0u, report.exitCode) << report.Text();
    EXPECT_TRUE(Complaints(report).empty()) << report.Text();
    for (const char* code : {"file.ok", "settings.value", "progid.ok", "method.ok", "server.reachable",
                             "model.part", "control.ok", "login.ok", "work.ok"})
        EXPECT_NE(std::string::npos, report.out.find(std::string("\"code\":\"") + code + "\"")) << code;
    EXPECT_EQ(std::string::npos, report.out.find("480317")) << "the PIN is nobody's business";
}

TEST(Doctor, EveryFault_IsNamedByItsCode) {
    for (const Fault& fault : kFaults) {
        SCOPED_TRACE(std::string(fault.code) + " " + fault.subject);
        Installation at;
        Remains remains;
        fault.make(at, remains);
        const HostResult report = at.Examine(WorkOptions(at, fault.options));
        const std::vector<std::string> lines = Complaints(report);
        const bool warning = std::string(fault.code) == "settings.read-only";
        EXPECT_EQ(warning ? 0u : 1u, report.exitCode) << report.Text();
        // What rests on a missing file is not tried, and unreadable settings have their defaults; nothing
        // else is complained about.
        const char* further =
            std::string(fault.code) == "settings.unreadable" ? "server.refused" : "model.not-checked";
        EXPECT_TRUE(lines.size() == 1 || (lines.size() == 2 && lines[1].find(further) != std::string::npos))
            << report.Text();
        if (lines.empty()) continue;
        EXPECT_NE(std::string::npos, lines[0].find("\"code\":\"" + std::string(fault.code) + "\""))
            << lines[0];
        EXPECT_NE(std::string::npos, lines[0].find(fault.subject)) << lines[0];
        EXPECT_EQ(std::string::npos, lines[0].find("\"remedy\":\"\"")) << lines[0];
    }
}

TEST(Doctor, StandIns_AreToldFromTheRealThing) {
    const Installation at;
    const HostResult report = at.Examine();
    EXPECT_EQ(1u, report.exitCode);
    EXPECT_EQ(6u, Complaints(report).size()) << report.Text();
    for (const std::string& line : Complaints(report))
        EXPECT_NE(std::string::npos, line.find("\"code\":\"file.standin\"")) << line;
}

TEST(Doctor, FullDisk_IsNamed) {
    wchar_t folder[MAX_PATH] = {};
    if (!GetEnvironmentVariableW(L"VARNOKE_FULL_FOLDER", folder, MAX_PATH))
        GTEST_SKIP() << "needs a folder without room: VARNOKE_FULL_FOLDER; doctor-disk brings one";
    const Installation at;
    const HostResult report = at.Examine({L"--allow-standins", L"--work", folder});
    EXPECT_NE(std::string::npos, report.out.find("\"code\":\"work.disk-full\"")) << report.Text();
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST(Doctor, BadUsage_IsRefused) {
    const Installation at;
    EXPECT_EQ(2u, at.Examine({L"--wrok=x"}).exitCode);
    EXPECT_EQ(2u, at.Examine({L"--timeout=0"}).exitCode);
    EXPECT_EQ("varnoke-doctor " PROJECT_VERSION "\r\n", at.Examine({L"--version"}).out);
}

} // namespace

} // namespace tests
