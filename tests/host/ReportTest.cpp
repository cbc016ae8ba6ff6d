// What the host tells for programs, into a file, and when it is to be quiet.
#include <gtest/gtest.h>
#include <regex>
#include "tests/host/HostFixture.h"
#include "tests/support/Text.h"

using namespace tests;

namespace {

using ReportTest = HostTest;

TEST_F(ReportTest, Json_IsAnObjectALineWithStableCodes) {
    Prepare({{L"a\\b.dwg", L"ab.dwg"}, {L"好.dwg"}, {L"none.dwg"}});
    std::filesystem::remove(m_vault / L"files" / L"none.dwg");
    const HostResult result = BackSign({L"--json"});
    EXPECT_EQ(result.err, "");
    const char* lines[] = {
        R"(\{"event":"begin","command":"back-sign","version":"[0-9.]+"\})",
        R"(\{"event":"document","document":"a\\\\b\.dwg","number":1,"of":3,"code":"refused-path",.*"remedy":"have the .*\})",
        R"(\{"event":"document","document":"好\.dwg","number":2,"of":3,"code":"signed","text":"[^"]+","secondsLeft":\d+\})",
        R"(\{"event":"document","document":"none\.dwg",.*"code":"failed-download",.*"cause":401,"why":".*none\.dwg.*","remedy":"[^"]+","secondsLeft":0\})",
        R"(\{"event":"note","code":"stand-ins","text":".*Durvell\.dll.*"\})",
        R"(\{"event":"note","code":"summary","text":"[^"]+"\})",
        R"(\{"event":"note","code":"return-file","text":".*\\\\ret_Ret\.Xml"\})",
        R"(\{"event":"end","exit":3\})",
    };
    std::istringstream out(result.out);
    std::string line;
    for (const char* expected : lines) {
        ASSERT_TRUE(std::getline(out, line)) << expected;
        EXPECT_TRUE(std::regex_match(line, std::regex(std::string(expected) + "\r"))) << line;
    }
    EXPECT_FALSE(std::getline(out, line)) << line;
}

TEST_F(ReportTest, Quiet_TellsFailuresAndTheResult_TheLogTellsAll) {
    Prepare({{L"a.dwg"}, {L"none.dwg"}});
    std::filesystem::remove(m_vault / L"files" / L"none.dwg");
    const auto log = m_folder / L"run.log";
    const HostResult result = BackSign({L"--quiet", L"--log", log.wstring()});
    EXPECT_EQ(result.exitCode, 3u) << result.Text();
    EXPECT_EQ(result.out.find("none.dwg: not signed"), 0u) << result.out;
    EXPECT_TRUE(result.Said("signed: 1 of 2"));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 2);
    BackSign({L"--log", log.wstring()});
    const std::string told = ReadBytes(log);
    const std::regex line(
        R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d a\.dwg: (downloaded, signed, uploaded|already signed)\r)");
    EXPECT_EQ(std::distance(std::sregex_iterator(told.begin(), told.end(), line), std::sregex_iterator()), 2)
        << told;
}

TEST_F(ReportTest, LogFile_ThatCannotBeWrittenSignsNothing) {
    Prepare({{L"a.dwg"}});
    EXPECT_EQ(BackSign({L"--log", (m_folder / L"none" / L"run.log").wstring()}).exitCode, 2u);
    EXPECT_EQ(SignCalls("Sign"), 0);
}

} // namespace
