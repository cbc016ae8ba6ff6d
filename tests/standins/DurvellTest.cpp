// The server access library over a folder: transfers, queries, records, faults, journal.
#include <windows.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <fstream>
#include <vector>

#include "plm/durvell.h"
#include "standins/durvell/ResultCodes.h"
#include "tests/support/TempFolder.h"

namespace fs = std::filesystem;
using namespace durvell;
using tests::ReadBytes;
using tests::WriteBytes;

namespace {

class Durvell : public testing::Test {
protected:
    Durvell() {
        fs::create_directory(Server());
        SetEnvironmentVariableW(L"DURVELL_VAULT", Server().c_str());
        SetEnvironmentVariableW(L"DURVELL_FAULT", Faults().c_str());
    }
    ~Durvell() override {
        SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr);
        SetEnvironmentVariableW(L"DURVELL_FAULT", nullptr);
    }

    fs::path Server() const { return m_folder / L"vault"; }
    fs::path Faults() const { return m_folder / L"faults.ini"; }
    fs::path Local(const wchar_t* name) const { return m_folder / name; }
    void SetFault(const wchar_t* key, const wchar_t* value) {
        WritePrivateProfileStringW(L"Fault", key, value, Faults().c_str());
    }
    int Download(const wchar_t* local, const wchar_t* remote) {
        return dvl_DownloadFile(Local(local).c_str(), remote, 0, 0);
    }
    int Upload(const wchar_t* local, const wchar_t* remote) {
        return dvl_UploadFile(Local(local).c_str(), remote, 0, 0);
    }
    int Query(const std::wstring& filter) {
        return dvl_QueryObjs(L"USER", L"", L"-1", L"0", L"", filter.c_str(), L"", Local(L"USER.Xml").c_str());
    }
    static std::wstring NameFilter(const std::wstring& name) {
        return L"<?xml version=\"1.0\"?><searchfilter><archivefilter>"
               L"<filter logiccode=\"and\" field=\"DEL\" comparetype=\"=\" value=\"0\"/>"
               L"<filter logiccode=\"and\" field=\"NAME\" comparetype=\"=\" value=\"" +
               name + L"\"/></archivefilter></searchfilter>";
    }

    tests::TempFolder m_folder;
};

TEST_F(Durvell, Transfer_CarriesWholeFileBothWaysAndReplaces) {
    const std::string bytes("AC1018\0\xff drawing", 16);
    WriteBytes(Local(L"图.dwg"), bytes);
    EXPECT_EQ(ResultOk, Upload(L"图.dwg", L"项目/图.dwg"));
    EXPECT_EQ(bytes, ReadBytes(Server() / L"files" / L"项目" / L"图.dwg"));
    WriteBytes(Local(L"back.dwg"), "an older and longer version of it");
    EXPECT_EQ(ResultOk, Download(L"back.dwg", L"项目\\图.dwg"));
    EXPECT_EQ(bytes, ReadBytes(Local(L"back.dwg")));
    EXPECT_TRUE(fs::is_empty(Server() / L"incoming"));
    for (const auto& entry : fs::directory_iterator(m_folder.Path()))
        EXPECT_NE(L".tmp", entry.path().extension());
}

TEST_F(Durvell, Transfer_RefusesNamesThatLeaveTheVault) {
    WriteBytes(Local(L"a.dwg"), "x");
    WriteBytes(Local(L"secret.txt"), "outside");
    for (const wchar_t* name : {L"",
                                L"..",
                                L"..\\..\\secret.txt",
                                L"a/../../../secret.txt",
                                L"C:\\secret.txt",
                                L"C:secret.txt",
                                L"\\secret.txt",
                                L"/secret.txt",
                                L"\\\\server\\share\\a",
                                L"a.dwg:stream",
                                L"NUL",
                                L"con.dwg",
                                L"dir/COM1.txt",
                                L"lpt\u00B2",
                                L"aux .dwg",
                                L"a\\\\b",
                                L"a.",
                                L"a ",
                                L".",
                                L"*.dwg",
                                L"a\nb",
                                L"a/"}) {
        EXPECT_EQ(ResultRefusedName, Upload(L"a.dwg", name)) << tests::ToUtf8(name);
        EXPECT_EQ(ResultRefusedName, Download(L"b.dwg", name)) << tests::ToUtf8(name);
    }
    EXPECT_EQ(ResultOk, Upload(L"a.dwg", L"..a.dwg"));
    EXPECT_EQ(ResultOk, Upload(L"a.dwg", L"COM10.console"));
    EXPECT_FALSE(fs::exists(Local(L"b.dwg")));
    EXPECT_EQ("outside", ReadBytes(Local(L"secret.txt")));
}

TEST_F(Durvell, Transfer_FailureKeepsWhatWasThere) {
    WriteBytes(Local(L"kept.dwg"), "kept");
    EXPECT_EQ(ResultNotFound, Download(L"kept.dwg", L"missing.dwg"));
    EXPECT_EQ("kept", ReadBytes(Local(L"kept.dwg")));
    EXPECT_EQ(ResultNotFound, Upload(L"missing.dwg", L"a.dwg"));
    EXPECT_FALSE(fs::exists(Server() / L"files" / L"a.dwg"));

    EXPECT_EQ(ResultOk, Upload(L"kept.dwg", L"a.dwg"));
    EXPECT_EQ(ResultFileError, Download(L"no such folder\\a.dwg", L"a.dwg"));
    fs::create_directory(Local(L"folder.dwg"));
    EXPECT_EQ(ResultFileError, Download(L"folder.dwg", L"a.dwg"));
    EXPECT_EQ(ResultBadArgument, dvl_DownloadFile(nullptr, L"a.dwg", 0, 0));
    SetEnvironmentVariableW(L"DURVELL_VAULT", Local(L"elsewhere").c_str());
    EXPECT_EQ(ResultNoVault, Download(L"kept.dwg", L"a.dwg"));
    EXPECT_EQ("kept", ReadBytes(Local(L"kept.dwg")));
}

TEST_F(Durvell, Query_SelectsByEveryFilter) {
    EXPECT_EQ(ResultNotFound, Query(NameFilter(L"wang")));
    WriteBytes(Server() / L"objects" / L"USER.xml",
               u8"<?xml version=\"1.0\" encoding=\"UTF-8\"?><root><objs><type id=\"USER\">"
               u8"<obj><pro name=\"NAME\" value=\"wang\"/><pro name=\"DEL\" value=\"1\"/>"
               u8"<pro name=\"LOCATION\" value=\"deleted.dwg\"/></obj>"
               u8"<obj><pro name=\"NAME\" value=\"Wang\"/><pro name=\"DEL\" value=\"0\"/>"
               u8"<pro name=\"LOCATION\" value=\"sign/王.dwg\"/></obj>"
               u8"<obj><pro name=\"name\" value=\"wang\"/><pro name=\"DEL\" value=\"0\"/></obj>"
               u8"</type></objs></root>");
    ASSERT_EQ(ResultOk, Query(NameFilter(L"wang")));
    const std::string found = ReadBytes(Local(L"USER.Xml"));
    EXPECT_NE(std::string::npos, found.find("<root><objs><type id=\"USER\"><obj>")) << found;
    EXPECT_NE(std::string::npos, found.find(u8"value=\"sign/王.dwg\"")) << found;
    EXPECT_EQ(std::string::npos, found.find("deleted.dwg")) << found;
    EXPECT_EQ(found.find("<obj>"), found.rfind("<obj>")) << found;
    ASSERT_EQ(ResultOk, Query(NameFilter(L"nobody")));
    EXPECT_EQ(std::string::npos, ReadBytes(Local(L"USER.Xml")).find("<obj>"));
}

TEST_F(Durvell, Query_BadFilterOrObjectsGiveNoFile) {
    WriteBytes(Server() / L"objects" / L"USER.xml", "<root><objs/></root>");
    std::wstring otherComparison = NameFilter(L"wang"), otherLogic = otherComparison;
    otherComparison.replace(otherComparison.find(L"\"=\""), 3, L"\"like\"");
    otherLogic.replace(otherLogic.find(L"\"and\""), 5, L"\"or\"");
    for (const std::wstring& filter :
         {std::wstring(), std::wstring(L"<searchfilter/>"), NameFilter(L"wa\"ng"), otherComparison,
          otherLogic, L"<!DOCTYPE searchfilter [<!ENTITY e \"wang\">]>" + NameFilter(L"&e;").substr(21)})
        EXPECT_EQ(ResultBadFilter, Query(filter)) << tests::ToUtf8(filter);
    WriteBytes(Server() / L"objects" / L"USER.xml", "<root><objs>");
    EXPECT_EQ(ResultBadObjectFile, Query(NameFilter(L"wang")));
    EXPECT_EQ(ResultRefusedName, dvl_QueryObjs(L"..\\USER", L"", L"-1", L"0", L"",
                                               NameFilter(L"wang").c_str(), L"", Local(L"USER.Xml").c_str()));
    EXPECT_FALSE(fs::exists(Local(L"USER.Xml")));
}

TEST_F(Durvell, SaveToServer_KeepsEachRecordInOrderOfArrival) {
    const auto save = [&] {
        return dvl_SaveToServer(Local(L"DocSignRecord.xml").c_str(), Local(L"DocTemt.xml").c_str());
    };
    EXPECT_EQ(ResultNotFound, save());
    EXPECT_FALSE(fs::exists(Local(L"DocTemt.xml")));
    std::string stored;
    for (const char* record : {"1", "2", "3"}) {
        WriteBytes(Local(L"DocSignRecord.xml"), record);
        ASSERT_EQ(ResultOk, save());
    }
    std::vector<fs::path> entries(fs::directory_iterator(Server() / L"signlog"), {});
    std::sort(entries.begin(), entries.end());
    for (const fs::path& entry : entries)
        stored += ReadBytes(entry);
    EXPECT_EQ("123", stored);
    ASSERT_EQ(3u, entries.size());
    EXPECT_NE(std::string::npos, ReadBytes(Local(L"DocTemt.xml")).find(entries[2].filename().string()));
}

TEST_F(Durvell, GetShareInfo_ReadsSessionAndCutsLongValues) {
    wchar_t user[1024] = {}, password[1024] = {}, server[1025] = {};
    server[1024] = L'#';
    EXPECT_EQ(ResultNotFound, dvl_GetShareInfo(user, password, server));
    const std::wstring session = Server() / L"session.ini";
    WritePrivateProfileStringW(L"Session", L"UserName", L"王工", session.c_str());
    WritePrivateProfileStringW(L"Session", L"Password", L"p w", session.c_str());
    WritePrivateProfileStringW(L"Session", L"Server", std::wstring(1100, L's').c_str(), session.c_str());
    ASSERT_EQ(ResultOk, dvl_GetShareInfo(user, password, server));
    EXPECT_STREQ(L"王工", user);
    EXPECT_STREQ(L"p w", password);
    EXPECT_EQ(std::wstring(1023, L's'), server);
    EXPECT_EQ(L'#', server[1024]);
}

TEST_F(Durvell, Fault_ByNumberNameAndRun) {
    WriteBytes(Local(L"a.dwg"), "x");
    SetFault(L"Run", L"number");
    SetFault(L"UploadFail", L"2|4");
    std::vector<int> results;
    for (int i = 0; i < 4; ++i)
        results.push_back(Upload(L"a.dwg", L"a.dwg"));
    EXPECT_EQ((std::vector<int>{ResultOk, ResultFault, ResultOk, ResultFault}), results);
    SetFault(L"Run", L"again");
    EXPECT_EQ(ResultOk, Upload(L"a.dwg", L"a.dwg"));
    EXPECT_EQ(ResultFault, Upload(L"a.dwg", L"b.dwg"));
    EXPECT_FALSE(fs::exists(Server() / L"files" / L"b.dwg"));

    SetFault(L"DownloadFailNames", L"b.dwg|图.DWG");
    SetFault(L"QueryFail", L"*");
    SetFault(L"ShareFail", L"1");
    EXPECT_EQ(ResultOk, Download(L"c.dwg", L"a.dwg"));
    EXPECT_EQ(ResultFault, Download(L"c.dwg", L"图.dwg"));
    EXPECT_EQ(ResultFault, Query(NameFilter(L"wang")));
    wchar_t buffer[1024] = {};
    EXPECT_EQ(ResultFault, dvl_GetShareInfo(buffer, buffer, buffer));
    SetFault(L"SaveFail", L"*");
    EXPECT_EQ(ResultFault, dvl_SaveToServer(Local(L"a.dwg").c_str(), Local(L"w.xml").c_str()));
    SetFault(L"DelayMs", L"300");
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(ResultOk, Download(L"c.dwg", L"a.dwg"));
    EXPECT_GE(GetTickCount64() - start, 280u);
}

TEST_F(Durvell, Journal_HasALineForEachCallWhileItIsOpenElsewhere) {
    WriteBytes(Local(L"a.dwg"), "x");
    ASSERT_EQ(ResultOk, Upload(L"a.dwg", L"图.dwg"));
    const fs::path journal = Server() / L"journal.log";
    std::ifstream reader(journal, std::ios::binary);
    ASSERT_EQ(ResultRefusedName, Download(L"b.dwg", L"x\ty"));
    const std::string text = ReadBytes(journal);
    EXPECT_EQ(2, std::count(text.begin(), text.end(), '\n')) << text;
    EXPECT_NE(std::string::npos, text.find(u8"\tdvl_UploadFile\t")) << text;
    EXPECT_NE(std::string::npos, text.find(u8"\t图.dwg\t=> 0\r\n")) << text;
    EXPECT_NE(std::string::npos, text.find(u8"\tx y\t=> 3\r\n")) << text;
}

} // namespace
