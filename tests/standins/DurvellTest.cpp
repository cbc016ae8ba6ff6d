// The server access library over a folder: names, failures, queries and records, where the product's own
// tests do not reach.
#include <windows.h>
#include <gtest/gtest.h>

#include "neighbours/durvell.h"
#include "standins/durvell/ResultCodes.h"
#include "tests/support/TempFolder.h"

namespace fs = std::filesystem;
using namespace durvell;
using tests::ReadBytes;
using tests::WriteBytes;

namespace {

class Durvell : public testing::Test {
protected:
    Durvell() { SetEnvironmentVariableW(L"DURVELL_VAULT", m_folder.Text().c_str()); }
    ~Durvell() override { SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr); }

    fs::path Local(const wchar_t* name) const { return m_folder / L"local" / name; }
    int Download(const wchar_t* local, const wchar_t* remote) {
        return dvl_DownloadFile(Local(local).c_str(), remote, 0, 0);
    }
    int Upload(const wchar_t* local, const wchar_t* remote) {
        return dvl_UploadFile(Local(local).c_str(), remote, 0, 0);
    }
    int Query(const std::wstring& filter, const wchar_t* type = L"USER") {
        return dvl_QueryObjs(type, L"", L"-1", L"0", L"", filter.c_str(), L"", Local(L"USER.Xml").c_str());
    }
    static std::wstring NameFilter(const std::wstring& name) {
        return L"<searchfilter><archivefilter><filter logiccode=\"and\" field=\"DEL\" comparetype=\"=\" "
               L"value=\"0\"/><filter logiccode=\"and\" field=\"NAME\" comparetype=\"=\" value=\"" +
               name + L"\"/></archivefilter></searchfilter>";
    }

    tests::TempFolder m_folder;
};

TEST_F(Durvell, Transfer_RefusesNamesThatLeaveTheVault) {
    WriteBytes(Local(L"a.dwg"), "x");
    WriteBytes(Local(L"secret.txt"), "outside");
    const wchar_t* const names[] = {L"",
                                    L"..",
                                    L"..\\..\\local\\secret.txt",
                                    L"a/../../../local/secret.txt",
                                    L"C:\\secret.txt",
                                    L"C:secret.txt",
                                    L"\\secret.txt",
                                    L"/secret.txt",
                                    L"\\\\server\\share\\a",
                                    L"a.dwg:stream",
                                    L"NUL",
                                    L"con.dwg",
                                    L"dir/COM1.txt",
                                    L"lpt²",
                                    L"aux .dwg",
                                    L"a\\\\b",
                                    L"a.",
                                    L"a ",
                                    L".",
                                    L"*.dwg",
                                    L"a\nb",
                                    L"a/"};
    for (const wchar_t* name : names) {
        EXPECT_EQ(ResultRefusedName, Upload(L"a.dwg", name)) << tests::ToUtf8(name);
        EXPECT_EQ(ResultRefusedName, Download(L"b.dwg", name)) << tests::ToUtf8(name);
    }
    EXPECT_EQ(ResultOk, Upload(L"a.dwg", L"..a.dwg"));
    EXPECT_EQ(ResultOk, Upload(L"a.dwg", L"COM10.console"));
    EXPECT_FALSE(fs::exists(Local(L"b.dwg")));
    EXPECT_EQ("outside", ReadBytes(Local(L"secret.txt")));
}

TEST_F(Durvell, Transfer_ReplacesWholeFilesAndFailureKeepsWhatWasThere) {
    const std::string bytes("AC1018\0\xff drawing", 16);
    WriteBytes(Local(L"图.dwg"), bytes);
    EXPECT_EQ(ResultOk, Upload(L"图.dwg", L"项目/图.dwg"));
    WriteBytes(Local(L"back.dwg"), "an older and longer version of it");
    EXPECT_EQ(ResultNotFound, Upload(L"missing.dwg", L"项目/图.dwg"));
    EXPECT_EQ(ResultNotFound, Download(L"back.dwg", L"missing.dwg"));
    EXPECT_EQ("an older and longer version of it", ReadBytes(Local(L"back.dwg")));
    EXPECT_EQ(ResultOk, Download(L"back.dwg", L"项目\\图.dwg"));
    EXPECT_EQ(bytes, ReadBytes(Local(L"back.dwg")));
    WriteBytes(Local(L"back.dwg"), "old");
    EXPECT_EQ(ResultOk, dvl_DownloadFile(Local(L"back.dwg").generic_wstring().c_str(), L"项目/图.dwg", 0, 0))
        << "with slashes";
    EXPECT_EQ(bytes, ReadBytes(Local(L"back.dwg")));

    EXPECT_EQ(ResultFileError, Download(L"no such folder\\a.dwg", L"项目/图.dwg"));
    fs::create_directory(Local(L"folder.dwg"));
    EXPECT_EQ(ResultFileError, Download(L"folder.dwg", L"项目/图.dwg"));
    EXPECT_EQ(ResultBadArgument, dvl_DownloadFile(nullptr, L"a.dwg", 0, 0));
    SetEnvironmentVariableW(L"DURVELL_VAULT", Local(L"elsewhere").c_str());
    EXPECT_EQ(ResultNoVault, Download(L"back.dwg", L"项目/图.dwg"));
    EXPECT_EQ(bytes, ReadBytes(Local(L"back.dwg")));
    EXPECT_EQ(3, std::distance(fs::directory_iterator(Local(L"")), {})) << "nothing half written is left";
}

TEST_F(Durvell, Query_FailureGivesNoFile) {
    fs::create_directory(Local(L""));
    WriteBytes(m_folder / L"objects" / L"USER.xml", "<root><objs/></root>");
    fs::create_directory(Local(L"USER.Xml"));
    EXPECT_EQ(ResultFileError, Query(NameFilter(L"wang")));
    fs::remove(Local(L"USER.Xml"));
    std::wstring otherComparison = NameFilter(L"wang"), otherLogic = otherComparison;
    otherComparison.replace(otherComparison.find(L"\"=\""), 3, L"\"like\"");
    otherLogic.replace(otherLogic.find(L"\"and\""), 5, L"\"or\"");
    const std::wstring entity = L"<!DOCTYPE searchfilter [<!ENTITY e \"wang\">]>" + NameFilter(L"&e;");
    for (const std::wstring& filter :
         {std::wstring(), std::wstring(L"<searchfilter/>"), otherComparison, otherLogic, entity})
        EXPECT_EQ(ResultBadFilter, Query(filter)) << tests::ToUtf8(filter);
    EXPECT_EQ(ResultRefusedName, Query(NameFilter(L"wang"), L"..\\USER"));
    WriteBytes(m_folder / L"objects" / L"USER.xml", "<root><objs>");
    EXPECT_EQ(ResultBadObjectFile, Query(NameFilter(L"wang")));
    EXPECT_TRUE(fs::is_empty(Local(L""))) << "not even a part of one";
}

} // namespace
