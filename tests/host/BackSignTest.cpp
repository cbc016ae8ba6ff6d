// The silent run end to end: all, some and no documents signed, refused names, dry run, no window.
#include "tests/host/HostFixture.h"

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
    EXPECT_TRUE(result.Said("return file: " + ToUtf8(m_returned.wstring()))) << result.Text();
    EXPECT_EQ("", result.err);

    EXPECT_EQ("11", ReturnValues());
    EXPECT_EQ(std::string::npos, ReadBytes(m_returned).find("LoginInfo"));
    EXPECT_EQ(1, Calls("dvl_UploadFile", "\tprojects/b-17.dwg\t=> 0"));
    EXPECT_EQ(1, Calls("dvl_SaveToServer", "=> 0"));
    EXPECT_TRUE(ServerLogged("D1"));
    EXPECT_TRUE(ServerLogged("D2"));
    EXPECT_FALSE(fs::exists(m_work / L"SignData" / L"DocSignRecord.xml"));
    for (const wchar_t* document : {L"泵体.dwg", L"b.dwg"}) {
        EXPECT_EQ(1, Tag(L"DocSignTag", document));
        EXPECT_EQ(1, Tag(L"DocSignLogTag", document));
    }

    EXPECT_EQ(1, SignCalls("Login", "\twang\t***\t"));
    // Signer and role, then the boxes of seal and date by their lower left corners.
    EXPECT_EQ(1, SignCalls("Sign", "\tD1\t"));
    EXPECT_EQ(2, SignCalls("Sign", "\twang\t校对\t180\t20\t180\t10\t40\t20\t40\t8\t=> 1"));
}

TEST_F(BackSignTest, SomeSigned_NoFailureStopsTheOthersOrShowsAWindow) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}, {L"c.dwg"}, {L"d.dwg"}});
    Fault(L"DownloadFailNames", L"a.dwg");
    Fault(L"UploadFailNames", L"c.dwg");
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Sign:1");
    Fault(L"DelayMs", L"100");
    int looks = 0, visible = 0;
    const HostResult result = BackSign({}, [&](DWORD process) {
        ++looks;
        visible += VisibleWindows(process);
    });
    EXPECT_GT(looks, 3);
    EXPECT_EQ(0, visible);
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

TEST_F(BackSignTest, FailingLog_IsAResultAndMadeUpForByTheNextRun) {
    Prepare({{L"a.dwg"}});
    const fs::path record = m_work / L"SignData/DocSignRecord.xml";
    fs::create_directories(record);
    HostResult result = BackSign();
    EXPECT_EQ(5u, result.exitCode) << result.Text();
    EXPECT_NE(std::string::npos, result.err.find("a.dwg: the sign log could not be written"));
    EXPECT_EQ("1", ReturnValues()) << "the server has the signed drawing";
    EXPECT_EQ(0, Tag(L"DocSignLogTag", L"a.dwg"));

    fs::remove(record);
    Fault(L"SaveFail", L"*");
    result = BackSign();
    EXPECT_EQ(5u, result.exitCode) << result.Text();
    EXPECT_NE(std::string::npos, result.err.find("the sign log was not sent"));
    EXPECT_EQ(1, Tag(L"DocSignLogTag", L"a.dwg"));
    EXPECT_TRUE(RunHost({L"log", L"--work", m_work}).Said("D1        校对  signed"));

    Fault(L"SaveFail", nullptr);
    EXPECT_EQ(0u, BackSign().exitCode);
    EXPECT_TRUE(ServerLogged("D1"));
    EXPECT_FALSE(fs::exists(record));
    EXPECT_EQ(0u, RunHost({L"log", L"--work", m_work}).exitCode);
    EXPECT_EQ(1, SignCalls("Sign"));
}

TEST_F(BackSignTest, Repeated_SignsOnlyWhatHasChanged) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}});
    ASSERT_EQ(0u, BackSign().exitCode);
    HostResult result = BackSign();
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: already signed")) << result.Text();
    EXPECT_EQ("11", ReturnValues());
    EXPECT_EQ(2, SignCalls("Sign"));
    EXPECT_EQ(2, Calls("dvl_UploadFile"));

    WriteBytes(m_work / L"a.dwg", "edited");
    result = BackSign();
    EXPECT_TRUE(result.Said(std::string("a.dwg") + kDone)) << result.Text();
    EXPECT_EQ(1, SignCalls("SignatureDelete", "\tD1\twang\t校对")) << "one signature is enough";
    EXPECT_EQ(2, SignCalls("Sign", "\tD1\t"));

    EXPECT_EQ(0u, BackSign({L"--again"}).exitCode);
    EXPECT_EQ(1, SignCalls("SignatureDelete", "\tD2\t"));
    EXPECT_EQ(2, SignCalls("Sign", "\tD2\t"));

    std::string message = ReadBytes(m_message);
    message.replace(message.find("'D2'"), 4, "'D9'");
    WriteBytes(m_message, message);
    EXPECT_EQ(0u, BackSign().exitCode);
    EXPECT_EQ(1, SignCalls("Sign", "\tD9\t")) << "another document under the name of a signed one";
}

TEST_F(BackSignTest, Killed_IsGoneOnWithWhereItEnded) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}, {L"c.dwg"}});
    Fault(L"DelayMs", L"400"); // before each transfer
    const HostResult killed = BackSign({}, [&](DWORD process) {
        if (SignCalls("Sign", "\tD2\t")) Kill(process);
    });
    EXPECT_EQ(9u, killed.exitCode) << killed.Text();
    EXPECT_EQ("", ReturnValues());
    Fault(L"DelayMs", nullptr);
    const HostResult next = BackSign();
    EXPECT_EQ(0u, next.exitCode) << next.Text();
    EXPECT_TRUE(next.Said("a.dwg: already signed")) << next.Text();
    EXPECT_EQ("111", ReturnValues());
    EXPECT_EQ(3, SignCalls("Sign")) << "what was signed but not uploaded is uploaded";
    EXPECT_EQ(0, SignCalls("SignatureDelete"));
    for (const char* id : {"D1", "D2", "D3"})
        EXPECT_TRUE(ServerLogged(id)) << id;

    // As if the process had ended in the server's call, before the log, and in the middle of a note.
    const fs::path notes = m_work / L"SignData/SignRun.log";
    for (const auto& [step, deletions, signatures] : {std::tuple("signing", 1, 4), {"uploaded", 1, 4}}) {
        std::string text = ReadBytes(notes);
        text.replace(text.find("done"), 4, step);
        WriteBytes(notes, text + "done\tcut\xE5");
        EXPECT_EQ(0u, BackSign().exitCode) << step;
        EXPECT_EQ(deletions, SignCalls("SignatureDelete", "\tD1\t")) << step;
        EXPECT_EQ(signatures, SignCalls("Sign")) << step;
    }
    EXPECT_EQ(3, Calls("dvl_SaveToServer"));
}

TEST_F(BackSignTest, SecondRun_IsRefusedWhileTheFirstIsAlive) {
    Prepare({{L"a.dwg"}});
    Fault(L"DelayMs", L"1500");
    HostResult second = {0, "", ""};
    const HostResult first = BackSign({}, [&](DWORD) {
        if (second.exitCode == 0 && fs::exists(m_work / L"SignData/SignRun.log")) second = BackSign();
    });
    EXPECT_EQ(6u, second.exitCode) << second.Text();
    EXPECT_NE(std::string::npos, second.err.find("another run is at work in this folder"));
    EXPECT_EQ(0u, first.exitCode) << first.Text();
    EXPECT_EQ(1, SignCalls("Sign"));
}

TEST_F(BackSignTest, Preflight_RefusesBeforeTheFirstSignature) {
    Prepare({{L"a.dwg"}});
    const fs::path settings = fs::path(BinFolder()) / L"Varnoke.ini";
    WriteBytes(settings, "[DynDisp]\r\nSign=Unterschreiben\r\n");
    const HostResult result = BackSign();
    const HostResult dry = BackSign({L"--dry-run"});
    WriteBytes(settings, "\xEF\xBB\xBF[DynDisp]\r\nSign=Sign\r\n");
    const HostResult encoding = BackSign();
    fs::remove(settings);
    EXPECT_EQ(2u, encoding.exitCode) << encoding.Text();
    EXPECT_NE(std::string::npos, encoding.err.find("save them as UTF-16")) << encoding.Text();
    for (const HostResult& refused : {result, dry}) {
        EXPECT_EQ(2u, refused.exitCode) << refused.Text();
        EXPECT_NE(std::string::npos, refused.err.find("has no method Unterschreiben")) << refused.Text();
    }
    EXPECT_EQ(0, Calls("dvl_"));
}

TEST_F(BackSignTest, Failures_StopTheRunWhenThereAreEnough) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}, {L"c.dwg"}});
    Fault(L"DownloadFail", L"*");
    const HostResult result = BackSign({L"--max-failures", L"2"});
    EXPECT_EQ(4u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: not signed: the download failed")) << result.Text();
    EXPECT_TRUE(result.Said("c.dwg: not tried: the run was stopped")) << result.Text();
    EXPECT_EQ("000", ReturnValues());
}

TEST_F(BackSignTest, DeadSigningServer_IsNotFetchedFor) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}, {L"c.dwg"}});
    SetEnvironmentVariableW(L"SIGNSERVER_FAULT", L"Gone:3"); // after the login and a.dwg
    const HostResult result = BackSign();
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: not signed: the signing server did not sign")) << result.Text();
    EXPECT_TRUE(result.Said("c.dwg: not signed: the signing server has gone")) << result.Text();
    EXPECT_EQ(2, Calls("dvl_DownloadFile"));
}

TEST_F(BackSignTest, CallsThatDoNotReturn_AreGivenUpWithTheirDocument) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}});
    ASSERT_EQ(0u, BackSign().exitCode);
    WriteBytes(m_work / L"b.dwg", "edited");
    Fault(L"DelayMs", L"60000");
    const HostResult result = BackSign({L"--timeout", L"1"});
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("b.dwg: not signed: a call took longer than the time limit")) << result.Text();
    EXPECT_EQ("10", ReturnValues());

    // The process that takes over signs again, too, what is behind the document in hand.
    SetEnvironmentVariableW(L"VARNOKE_GIVEN_UP", L" 0");
    Fault(L"DelayMs", nullptr);
    const HostResult again = BackSign({L"--again"});
    SetEnvironmentVariableW(L"VARNOKE_GIVEN_UP", nullptr);
    EXPECT_EQ(0u, again.exitCode) << again.Text();
    EXPECT_EQ("11", ReturnValues());
    EXPECT_EQ(2, SignCalls("Sign", "\tD2\t"));
    EXPECT_EQ(1, SignCalls("Sign", "\tD1\t"));
}

TEST_F(BackSignTest, DocumentsWithoutIdentifierAndRole_AreLoggedAsTheyWereSigned) {
    Prepare({{L"a.dwg"}, {L"b.dwg"}});
    std::string message = ReadBytes(m_message);
    for (const std::string name : {"'ID'", "'SIGN_ROLE'"})
        for (size_t at; (at = message.find(name)) != std::string::npos;)
            message.replace(at, name.size(), "'OTHER'");
    WriteBytes(m_message, message);
    EXPECT_EQ(0u, BackSign({}).exitCode);
    EXPECT_TRUE(ServerLogged("a.dwg"));
    EXPECT_TRUE(ServerLogged("b.dwg", "设计"));
}

TEST_F(BackSignTest, EscapingNames_AreRefusedWhileOthersAreSigned) {
    const std::pair<std::string, std::vector<std::wstring>> refused[] = {
        {"leaves the work folder",
         {L"..\\up.dwg", L"..", L"sub/down.dwg", L"\\root.dwg", L"C:\\drive.dwg", L"C:drive.dwg",
          L"stream.dwg:x"}},
        {"is that of a device", {L"nul", L"CON .dwg", L"com1.dwg", L"LPT³.dwg"}},
        {"ends in a full stop or a blank", {L"dot.dwg.", L"blank.dwg "}},
        {"forbidden character", {L"any*.dwg"}},
        {"no file name", {L""}},
        {"library's own folder", {L"signdata"}},
        {"several documents", {L"Twin.dwg", L"twin.DWG"}},
    };
    std::vector<TestDocument> documents = {{L"good.dwg"}};
    for (const auto& [reason, names] : refused)
        for (const std::wstring& name : names)
            documents.push_back({name, L"good.dwg"});
    const std::string expected = "1" + std::string(documents.size() - 1, '0') + "1";
    documents.push_back({L"COM.dwg", L"good.dwg"});
    Store(L"good.dwg");
    WriteBytes(m_message, ToUtf8(MessageText(documents)));

    const HostResult result = BackSign();
    EXPECT_EQ(3u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said(std::string("good.dwg") + kDone)) << result.Text();
    EXPECT_TRUE(result.Said(std::string("COM.dwg") + kDone)) << result.Text();
    for (const auto& [reason, names] : refused)
        for (const std::wstring& name : names) {
            const std::string label = name.empty() ? "(document 16)" : ToUtf8(name);
            const size_t at = ("\n" + result.out).find("\n" + label + ": refused: ");
            ASSERT_NE(std::string::npos, at) << label << "\n" << result.Text();
            const std::string line = result.out.substr(at, result.out.find('\n', at) - at);
            EXPECT_NE(std::string::npos, line.find(reason)) << line;
        }
    EXPECT_EQ(2, Calls("dvl_DownloadFile")) << "a refused document must not be fetched";
    EXPECT_EQ(expected, ReturnValues());
    std::set<std::wstring> files;
    for (const auto& entry : fs::directory_iterator(m_work))
        files.insert(entry.path().filename().wstring());
    EXPECT_EQ((std::set<std::wstring>{L"COM.dwg", L"SignData", L"good.dwg"}), files);
}

TEST_F(BackSignTest, DryRun_LeavesEverythingAsItIs) {
    Prepare({{L"a.dwg"}, {L"图.dwg"}});
    const std::set<std::string> before = Snapshot();
    HostResult result = BackSign({L"--dry-run"});
    EXPECT_EQ(0u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("message: signer wang, documents: 2")) << result.Text();
    EXPECT_TRUE(result.Said("signing server: available"));
    EXPECT_TRUE(result.Said("图.dwg: ready"));
    EXPECT_TRUE(result.Said("could be signed: 2 of 2"));
    EXPECT_EQ(before, Snapshot());

    fs::remove(m_work);
    const fs::path settings = fs::path(BinFolder()) / L"Varnoke.ini";
    WriteBytes(settings, "[DynDisp]\r\nProgID=No.Such.Server\r\n");
    result = BackSign({L"--dry-run"});
    fs::remove(settings);
    EXPECT_EQ(4u, result.exitCode) << result.Text();
    EXPECT_TRUE(result.Said("signing server: not available")) << result.Text();
    EXPECT_TRUE(result.Said("could be signed: 0 of 2"));
    EXPECT_FALSE(fs::exists(m_work));
}

TEST_F(BackSignTest, ReturnPathWithoutExtension_KeepsItsName) {
    Prepare({{L"a.dwg"}});
    m_return = m_folder / L"out.d/ret";
    fs::create_directory(m_return.parent_path());
    EXPECT_EQ(0u, BackSign().exitCode);
    EXPECT_TRUE(fs::exists(m_folder / L"out.d/ret_Ret.Xml"));
}

// The library is loaded without the neighbours, and with one that lacks its functions; calls of them fail.
TEST_F(BackSignTest, MissingNeighbours_StopTheDocumentsNotTheHost) {
    const fs::path built = BinFolder(), bare = m_folder / L"bare";
    fs::create_directory(bare);
    for (const wchar_t* file : {L"Varnoke.dll", L"varnoke-host.exe"})
        fs::copy_file(built / file, bare / file);
    // Of a build with Microsoft's framework, which is no neighbour.
    if (fs::exists(built / L"mfc140u.dll")) fs::copy_file(built / L"mfc140u.dll", bare / L"mfc140u.dll");
    Prepare({{L"a.dwg"}});
    SetEnvironmentVariableW(L"VARNOKE_BIN", bare.c_str());
    EXPECT_EQ(2u, BackSign().exitCode) << "without a model there is no log";
    for (const bool incomplete : {false, true}) {
        if (incomplete) fs::copy_file(built / L"QORLocal.dll", bare / L"Durvell.dll");
        const HostResult result = BackSign({L"--no-log"});
        EXPECT_EQ(4u, result.exitCode) << result.Text();
        EXPECT_TRUE(result.Said("a.dwg: not signed: the download failed")) << result.Text();
        EXPECT_EQ("0", ReturnValues());
    }
    SetEnvironmentVariableW(L"VARNOKE_BIN", built.c_str());
    EXPECT_EQ(0, Calls("dvl_"));
}

} // namespace

} // namespace tests
