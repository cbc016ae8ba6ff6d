// The silent run end to end: all, some and no documents signed, refused names, dry run, no window.
#include "tests/host/HostFixture.h"

#include <algorithm>
#include <atomic>

namespace fs = std::filesystem;

namespace tests {

namespace {

constexpr char kDone[] = ": downloaded, signed, uploaded";

using BackSignTest = HostTest;

TEST_F(BackSignTest, AllSigned_ReturnsLogsAndTagsEveryDocument) {
    Prepare({{L"泵体.dwg"}, {L"b.dwg", L"projects/b-17.dwg"}});
    const HostResult result = BackSign();
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said(std::string("泵体.dwg") + kDone)) << result.Text();
    EXPECT_TRUE(result.Said(std::string("b.dwg") + kDone)) << result.Text();
    EXPECT_TRUE(result.Said("signed: 2 of 2")) << result.Text();
    EXPECT_TRUE(result.Said("return file: " + ToUtf8(ReturnFile().wstring()))) << result.Text();
    EXPECT_EQ("", result.err);

    EXPECT_EQ("11", ReturnValues());
    EXPECT_EQ(std::string::npos, ReadBytes(ReturnFile()).find("LoginInfo"));
    EXPECT_EQ(1, Calls("dvl_UploadFile", "\tprojects/b-17.dwg\t=> 0"));
    EXPECT_EQ(1, Calls("dvl_SaveToServer", "=> 0"));
    EXPECT_TRUE(ServerLogged("D1"));
    EXPECT_TRUE(ServerLogged("D2"));
    EXPECT_FALSE(fs::exists(Work() / L"SignData" / L"DocSignRecord.xml"));
    for (const wchar_t* document : {L"泵体.dwg", L"b.dwg"}) {
        EXPECT_EQ(1, Tag(L"DocSignTag", document));
        EXPECT_EQ(1, Tag(L"DocSignLogTag", document));
    }

    EXPECT_EQ(1, SignCalls("Login", "\twang\t***\t"));
    // Signer and role, then the boxes of seal and date by their lower left corners.
    EXPECT_EQ(1, SignCalls("Sign", "\tD1\t"));
    EXPECT_EQ(2, SignCalls("Sign", "\twang\t校对\t180\t20\t180\t10\t40\t20\t40\t8\t=> 1"));
}

TEST_F(BackSignTest, SomeSigned_NoFailureStopsTheOthers) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}, {L"c.dwg"}, {L"d.dwg"}});
    Fault(L"DownloadFailNames", L"a.dwg");
    Fault(L"UploadFailNames", L"c.dwg");
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Sign:1");
    const HostResult result = BackSign();
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("a.dwg: not signed: the download failed")) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: not signed: the signing server did not sign"));
    EXPECT_TRUE(result.Said("c.dwg: not signed: the upload failed"));
    EXPECT_TRUE(result.Said(std::string("d.dwg") + kDone));
    EXPECT_TRUE(result.Said("signed: 1 of 4"));

    EXPECT_EQ("0001", ReturnValues());
    EXPECT_EQ(0, Calls("dvl_UploadFile", "b.dwg")) << "an unsigned drawing must not be returned";
    EXPECT_EQ(0, Tag(L"DocSignTag", L"b.dwg"));
    EXPECT_EQ(0, Tag(L"DocSignTag", L"c.dwg")) << "the server has no signed copy";
    EXPECT_EQ(1, Tag(L"DocSignTag", L"d.dwg"));
    EXPECT_FALSE(ServerLogged("D3"));
    EXPECT_TRUE(ServerLogged("D4"));
}

TEST_F(BackSignTest, NoneSigned_WhenLoginFails) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}});
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Login");
    const HostResult result = BackSign();
    EXPECT_EQ(4u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: not signed: the login to the signing server failed")) << result.Text();
    EXPECT_EQ("00", ReturnValues());
    EXPECT_EQ(0, Calls("dvl_UploadFile"));
    EXPECT_EQ(0, Calls("dvl_SaveToServer"));
}

TEST_F(BackSignTest, RefusedLog_IsKeptAndSentByTheNextRun) {
    Prepare({{L"a.dwg"}});
    Fault(L"SaveFail", L"*");
    const HostResult result = BackSign();
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_NE(std::string::npos, result.err.find("refused the sign log"));
    const HostResult log = RunHost({L"log", L"--work", Work().wstring()});
    EXPECT_EQ(0u, log.exitCode) << log.Text();
    EXPECT_TRUE(log.Said("D1        校对  signed  new")) << log.Text();

    Fault(L"SaveFail", nullptr);
    WriteBytes(Message(), ToUtf8(MessageText({{L"x.dwg"}, {L"b.dwg"}})));
    Store(L"b.dwg");
    EXPECT_EQ(3u, BackSign().exitCode);
    EXPECT_TRUE(ServerLogged("D1"));
    EXPECT_TRUE(ServerLogged("D2"));
    EXPECT_EQ(4u, RunHost({L"log", L"--work", Work().wstring()}).exitCode);
}

TEST_F(BackSignTest, EscapingNames_AreRefusedWhileOthersAreSigned) {
    const std::vector<std::pair<std::wstring, std::string>> refused = {
        {L"..\\up.dwg", "leaves the work folder"},
        {L"..", "leaves the work folder"},
        {L"sub/down.dwg", "leaves the work folder"},
        {L"\\root.dwg", "leaves the work folder"},
        {L"C:\\drive.dwg", "leaves the work folder"},
        {L"C:drive.dwg", "leaves the work folder"},
        {L"stream.dwg:x", "leaves the work folder"},
        {L"nul", "is that of a device"},
        {L"CON .dwg", "is that of a device"},
        {L"com1.dwg", "is that of a device"},
        {L"LPT³.dwg", "is that of a device"},
        {L"dot.dwg.", "ends in a full stop or a blank"},
        {L"blank.dwg ", "ends in a full stop or a blank"},
        {L"any*.dwg", "forbidden character"},
        {L"", "no file name"},
        {L"signdata", "library's own folder"},
        {L"Twin.dwg", "several documents"},
        {L"twin.DWG", "several documents"},
    };
    std::vector<TestDocument> documents = {{L"good.dwg"}};
    for (const auto& name : refused)
        documents.push_back({name.first, L"good.dwg"});
    documents.push_back({L"COM.dwg", L"good.dwg"});
    Store(L"good.dwg");
    WriteBytes(Message(), ToUtf8(MessageText(documents)));

    const HostResult result = BackSign();
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said(std::string("good.dwg") + kDone)) << result.Text();
    EXPECT_TRUE(result.Said(std::string("COM.dwg") + kDone)) << result.Text();
    for (const auto& name : refused) {
        const std::string label = name.first.empty() ? "(document 16)" : ToUtf8(name.first);
        const size_t at = ("\n" + result.out).find("\n" + label + ": refused: ");
        ASSERT_NE(std::string::npos, at) << label << "\n" << result.Text();
        const std::string line = result.out.substr(at, result.out.find('\n', at) - at);
        EXPECT_NE(std::string::npos, line.find(name.second)) << line;
    }
    EXPECT_EQ(2, Calls("dvl_DownloadFile")) << "a refused document must not be fetched";
    EXPECT_EQ("1" + std::string(refused.size(), '0') + "1", ReturnValues());
    std::vector<std::wstring> files;
    for (const auto& entry : fs::directory_iterator(Work()))
        files.push_back(entry.path().filename().wstring());
    std::sort(files.begin(), files.end());
    EXPECT_EQ((std::vector<std::wstring>{L"COM.dwg", L"SignData", L"good.dwg"}), files);
}

TEST_F(BackSignTest, DryRun_LeavesEverythingAsItIs) {
    Prepare({{L"a.dwg"}, {L"图.dwg"}});
    const std::string before = Snapshot();
    HostResult result = BackSign({L"--dry-run"});
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("message: signer wang, documents: 2")) << result.Text();
    EXPECT_TRUE(result.Said("signing server: available"));
    EXPECT_TRUE(result.Said("图.dwg: ready"));
    EXPECT_TRUE(result.Said("could be signed: 2 of 2"));
    EXPECT_EQ(before, Snapshot());

    fs::remove(Vault() / L"files" / L"a.dwg");
    result = BackSign({L"--dry-run"});
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("a.dwg: not ready: not in the vault")) << result.Text();
    fs::remove(Work());
    EXPECT_EQ(3u, BackSign({L"--dry-run"}).exitCode);
    EXPECT_FALSE(fs::exists(Work()));
}

TEST_F(BackSignTest, SilentRun_ShowsNoWindow) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}});
    Fault(L"DelayMs", L"400");
    Fault(L"DownloadFailNames", L"b.dwg");
    int looks = 0;
    int visible = 0;
    const HostResult result = BackSign({}, [&](DWORD process) {
        ++looks;
        visible += VisibleWindows(process);
    });
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_GT(looks, 3);
    EXPECT_EQ(0, visible);
}

TEST_F(BackSignTest, ReturnPathWithoutExtension_KeepsItsName) {
    Prepare({{L"a.dwg"}});
    fs::create_directory(m_folder / L"out.d");
    const HostResult result =
        RunHost({L"back-sign", L"--message", Message().wstring(), L"--vault", Vault().wstring(), L"--work",
                 Work().wstring(), L"--return", (m_folder / L"out.d/ret").wstring()});
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(fs::exists(m_folder / L"out.d" / L"ret_Ret.Xml"));
}

} // namespace

} // namespace tests
