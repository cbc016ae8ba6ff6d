// The sign log: what each signature and deletion leaves in the record file, and its way to the server.
#include <afxwin.h>
#include <thread>
#include "tests/signlog/SignLogFixture.h"

using namespace tests;
namespace fs = std::filesystem;

TEST_F(SignLogTest, NewEntry_HoldsWhatWasSigned) {
    ASSERT_EQ(Write(L"N", L"ID=DOC-1|SIGN_ROLE=审核|DOC_NAME=earlier|DOC_NAME=总装图 <A1>|SIGN_USER=李工|"
                          L"SIGN_DATE=2024-03-05|DOC_VERSION=B.2"),
              1);
    EXPECT_TRUE(GetFileAttributesW(m_signData.c_str()) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(FileNames(m_signData), m_recordOnly);

    // But for its new identifier the entry is that of the sample file.
    std::string written = ReadBytes(m_record);
    const std::string id = ToUtf8(ReadEntries(m_record).at(0).properties[L"ID"]);
    ASSERT_EQ(id.size(), 36u);
    EXPECT_EQ(id.find_first_not_of("0123456789ABCDEF-"), std::string::npos);
    for (size_t at; (at = written.find(id)) != std::string::npos;)
        written.replace(at, id.size(), "6F9619FF-8B86-D011-B42D-00C04FC964FF");
    EXPECT_EQ(written, ReadBytes(Built(L"samples\\DocSignRecord.xml")));
}

TEST_F(SignLogTest, NewEntry_KeepsDifficultTexts) {
    for (const wchar_t* text : {L"", L"<&\"'>", L" a\tb\r\nc ", L"图𠀀"}) {
        ASSERT_EQ(Write(L"D", std::wstring(L"SIGN_ROLE=r|ID=") + text + L"|DOC_NAME=" + text), 1);
        Entry entry = ReadEntries(m_record).back();
        EXPECT_EQ(entry.properties[L"QORMFILEID"], text);
        EXPECT_EQ(entry.properties[L"DOCNAME"], text);
        EXPECT_EQ(entry.properties[L"QORMTYPE"] + entry.local[L"SIGNSTATE"], L"DD");
    }
    const std::string before = ReadBytes(m_record);
    for (const wchar_t* text : {L"\x1", L"\xD800", L"\xFFFF"})
        EXPECT_EQ(Write(L"N", std::wstring(L"ID=x|DOC_NAME=") + text), 0) << "XML can't hold it";
    EXPECT_EQ(ReadBytes(m_record), before);
}

// Entries are named by their kind and their number in the old file; "N+" and "D+" are new.
TEST_F(SignLogTest, Rule_EveryRow) {
    const struct {
        const wchar_t *before, *kind, *after;
    } rows[] = {
        {L"", L"N", L"N+"},        {L"", L"D", L"D+"},   {L"N", L"N", L"N+"},     {L"N", L"D", L""},
        {L"D", L"N", L"D0 N+"},    {L"D", L"D", L"D0"},  {L"ND", L"N", L"D1 N+"}, {L"DN", L"N", L"D0 N+"},
        {L"ND", L"D", L"D1"},      {L"DN", L"D", L"D0"}, {L"NN", L"N", L"N+"},    {L"NN", L"D", L""},
        {L"DD", L"N", L"D1 N+"},   {L"DD", L"D", L"D1"}, {L"NDN", L"D", L"D1"},   {L"DDDN", L"D", L"D2"},
        {L"NDND", L"N", L"D3 N+"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << '"' << row.before << "\" then " << row.kind);
        WriteRecord(m_record, row.before);
        const std::string before = ReadBytes(m_record);
        EXPECT_EQ(Write(row.kind), 1);
        EXPECT_EQ(Summary(m_record), row.after);
        EXPECT_EQ(Summary(m_record, false), L"N0 N1 N2") << "other type, other document, other role";
        const bool logged = std::wstring_view(row.before) == L"D" && std::wstring_view(row.kind) == L"D";
        EXPECT_EQ(ReadBytes(m_record) == before, logged) << "saved unless the deletion is logged already";
    }
}

TEST_F(SignLogTest, UnusableArguments_TouchNothing) {
    SSignObj object;
    EXPECT_EQ(m_plm->WriteDelOrSignLogToLocal(nullptr, m_folder.Text().c_str(), L"N"), 0);
    EXPECT_EQ(m_plm->WriteDelOrSignLogToLocal(&object, L"", L"N"), 0);
    EXPECT_EQ(Write(L"X") + Write(L""), 0);
    EXPECT_EQ(m_plm->WriteSignLogToServer(L""), 1);
    for (const wchar_t* key : {L"LocalObjectConfigId", L"ServerObjectConfigId", L"DesignDoMain"}) {
        m_settings.Set(L"SignLog", key, L"nowhere");
        EXPECT_EQ(Write(L"N"), 0) << key;
        m_settings.Remove();
    }
    EXPECT_EQ(Write(L"N", kDrawing, L"\\missing"), 0);
    EXPECT_TRUE(fs::is_empty(m_folder.Path()));
}

TEST_F(SignLogTest, DamagedRecord_StartsAnewAndKeepsTheOldFile) {
    const std::string sample = ReadBytes(Built(L"samples\\DocSignRecord.xml"));
    const std::string contents[] = {
        "",
        sample.substr(0, sample.size() - 20),
        std::string(3000, '\0'),
        "<qordata><obj type='T' state='N'><pro name='ID'/></obj></qordata>",
        "<qordata><obj type='T' state='N'><local/><local/></obj></qordata>",
        "<qordata><obj type='T' state='N'><local kind='x'/></obj></qordata>",
        "<qordata> <obj type='T' state='N'/> a note </qordata>",
        "<!DOCTYPE qordata [<!ENTITY e SYSTEM 'file:///c:/x'>]><qordata/>",
    };
    int copies = 0;
    for (const std::string& content : contents) {
        SCOPED_TRACE(content.substr(0, 60));
        WriteBytes(m_record, content);
        EXPECT_EQ(Write(L"N"), 1);
        EXPECT_EQ(Summary(m_record), L"N+");
        const std::wstring copy = L"DocSignRecord.unreadable" + std::to_wstring(++copies) + L".xml";
        EXPECT_EQ(ReadBytes(m_signData / copy), content);
    }
}

TEST_F(SignLogTest, ReadOnlyRecord_IsWritten) {
    WriteRecord(m_record, L"D");
    SetFileAttributesW(m_record.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Write(L"N", kDrawing, L"\\"), 1);
    EXPECT_EQ(Summary(m_record), L"D0 N+") << "the same file with a backslash behind the folder";
    EXPECT_EQ(FileNames(m_signData), m_recordOnly);
}

TEST_F(SignLogTest, LockedRecord_StaysAsItIs) {
    WriteRecord(m_record, L"N");
    const std::string good = ReadBytes(m_record), bad = "<qordata>";
    for (const auto& [before, sharing] :
         {std::pair(good, 0), {good, FILE_SHARE_READ}, {bad, 0}, {bad, FILE_SHARE_READ}}) {
        WriteBytes(m_record, before);
        const HANDLE lock =
            CreateFileW(m_record.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(lock, INVALID_HANDLE_VALUE);
        EXPECT_EQ(Write(L"D"), 0);
        CloseHandle(lock);
        EXPECT_EQ(ReadBytes(m_record), before);
        EXPECT_EQ(FileNames(m_signData), m_recordOnly);
    }
}

// Every model operation of a write fails once, when the whole record is read and when it isn't: the file
// stays as it was and no object is left.
TEST_F(SignLogTest, FailingModel_LeavesTheFile) {
    for (const bool inPlace : {false, true}) {
        int n = 0;
        for (long done = 0; !done;) {
            fs::remove(m_record);
            if (inPlace) WriteSome(3);
            if (!inPlace) WriteRecord(m_record, L"NND");
            const std::string before = ReadBytes(m_record);
            const long objects = LiveModelObjects();
            SetModelFault(++n);
            done = Write(L"N");
            SetModelFault(0);
            ASSERT_EQ(LiveModelObjects(), objects) << n;
            ASSERT_EQ(FileNames(m_signData), m_recordOnly) << n;
            ASSERT_EQ(ReadBytes(m_record) == before, !done) << n;
        }
        EXPECT_GT(n, inPlace ? 40 : 100) << "fewer operations than the entries have properties";
        EXPECT_EQ(Summary(m_record), inPlace ? L"N+" : L"D2 N+");
    }
}

// A record that grows without being read is at all times what the parser library would write.
TEST_F(SignLogTest, GrowingRecord_IsTheParserLibrarysOwn) {
    const auto normal = [&] {
        QORMODEL::IQORDataModelPtr model;
        model.CreateInstance(QORMODEL::CLSID_QORDataModel);
        CQORXmlDataParser().parseDataFile(m_record.c_str(), model, nullptr);
        CQORXmlDataParser().saveToFile(model, (m_folder / L"normal.xml").c_str());
        return ReadBytes(m_folder / L"normal.xml");
    };
    WriteRecord(m_record, L"");
    for (int count = 4; count <= 8; ++count) {
        WriteSome(1);
        EXPECT_EQ(ReadBytes(m_record), normal());
        EXPECT_EQ(ReadEntries(m_record).size(), size_t(count));
    }
    // The rules hold there, too.
    const std::pair<const wchar_t*, const wchar_t*> steps[] = {
        {L"D", L"D+"}, {L"D", L"D+"}, {L"N", L"D+ N+"}, {L"N", L"D+ N+"}, {L"D", L"D+"}};
    for (const auto& [kind, after] : steps) {
        EXPECT_EQ(Write(kind), 1);
        EXPECT_EQ(Summary(m_record), after);
        WriteSome(2);
        EXPECT_EQ(ReadBytes(m_record), normal());
    }
    WriteRecord(m_record, L"DD");
    WriteSome(1);
    EXPECT_EQ(Write(L"D"), 1);
    EXPECT_EQ(Summary(m_record), L"D1") << "one of them is enough";
    m_settings.Set(L"SignLog", L"LocalObjectConfigId", L"IQORM_OBJ_REVIEW");
    EXPECT_EQ(Write(L"N"), 1);
    EXPECT_EQ(ReadEntries(m_record).back().type, L"IQORM_OBJ_REVIEW");
    EXPECT_EQ(ReadBytes(m_record), normal());
    m_settings.Remove();
}

TEST_F(SignLogTest, RecordChangedByOthers_IsReadAgain) {
    WriteSome(3);
    const std::string three = ReadBytes(m_record);
    WriteSome(1);
    WriteBytes(m_record, three);
    WriteSome(1);
    EXPECT_EQ(ReadEntries(m_record).size(), 4u);
    fs::remove(m_record);
    WriteSome(1);
    EXPECT_EQ(ReadEntries(m_record).size(), 1u);
    WriteSome(2);
    // Changed by others without getting longer.
    std::string bytes = ReadBytes(m_record);
    WIN32_FILE_ATTRIBUTE_DATA facts; // fs::last_write_time may know whole seconds only
    GetFileAttributesExW(m_record.c_str(), GetFileExInfoStandard, &facts);
    const std::string id = ToUtf8(ReadEntries(m_record).back().properties[L"QORMFILEID"]);
    for (size_t at; (at = bytes.find('"' + id + '"')) != std::string::npos;)
        bytes.replace(at + 1, id.size(), std::string(id.size(), 'z'));
    WriteBytes(m_record, bytes);
    const HANDLE file = CreateFileW(m_record.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    SetFileTime(file, nullptr, nullptr, &facts.ftLastWriteTime);
    CloseHandle(file);
    EXPECT_EQ(Write(L"N", L"SIGN_ROLE=r|ID=" + std::wstring(id.size(), L'z')), 1);
    EXPECT_EQ(ReadEntries(m_record).size(), 3u) << "replaces the entry that others made";
}

// What a process that was killed in the middle of a change leaves.
TEST_F(SignLogTest, CutOffChange_IsFinished) {
    WriteSome(3);
    const std::string before = ReadBytes(m_record);
    WriteSome(1);
    const std::string after = ReadBytes(m_record);
    const unsigned long long offset = before.rfind("</qordata>");
    const std::string added = after.substr(offset);
    unsigned long long sum = 14695981039346656037u ^ offset;
    for (const char byte : added)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1099511628211u;
    const auto bytesOf = [](unsigned long long number) {
        return std::string(reinterpret_cast<char*>(&number), 8);
    };
    const std::string announced = bytesOf(sum) + bytesOf(offset) + added;
    const fs::path lock = m_signData / L"DocSignRecord.lock";

    WriteBytes(m_record, after.substr(0, offset + 100));
    WriteBytes(lock, announced);
    WriteSome(1);
    EXPECT_EQ(ReadBytes(m_record).substr(0, after.rfind("</qordata>")),
              after.substr(0, after.rfind("</qordata>")));
    EXPECT_EQ(ReadEntries(m_record).size(), 5u);
    // What is no announcement, or has nothing to finish, changes nothing.
    for (const std::string& left : {announced, announced.substr(1), std::string("?"), std::string()}) {
        WriteBytes(m_record, before);
        WriteBytes(lock, left);
        WriteSome(1);
        EXPECT_EQ(ReadEntries(m_record).size(), 4u);
        EXPECT_EQ(FileNames(m_signData), m_recordOnly);
    }

    const TempFolder vault;
    SetEnvironmentVariableW(L"DURVELL_VAULT", vault.Text().c_str());
    WriteBytes(m_record, after.substr(0, offset + 100));
    WriteBytes(lock, announced);
    EXPECT_EQ(m_plm->WriteSignLogToServer(m_folder.Text().c_str()), 0);
    EXPECT_EQ(ReadBytes(vault / L"signlog" / FileNames(vault / L"signlog").back()), after);
    WriteBytes(m_record, after.substr(0, offset + 100));
    WriteBytes(lock, "?" + announced.substr(1));
    WriteSome(1);
    EXPECT_EQ(ReadEntries(m_record).size(), 1u) << "an announcement cut off itself finishes nothing";
}

TEST_F(SignLogTest, RecordInUse_IsWaitedFor) {
    WriteSome(1);
    const std::string before = ReadBytes(m_record);
    const HANDLE lock = CreateFileW((m_signData / L"DocSignRecord.lock").c_str(), GENERIC_READ | DELETE, 0,
                                    nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    std::thread user([&] {
        Sleep(100);
        EXPECT_EQ(ReadBytes(m_record), before);
        CloseHandle(lock);
    });
    WriteSome(1);
    user.join();
    EXPECT_EQ(ReadEntries(m_record).size(), 2u);
}

TEST_F(SignLogTest, ToServer_SendsOnceAndDeletes) {
    const TempFolder vault;
    const auto send = [&](const std::wstring& folder) { return m_plm->WriteSignLogToServer(folder.c_str()); };
    SetEnvironmentVariableW(L"DURVELL_VAULT", vault.Text().c_str());
    for (const wchar_t* end : {L"", L"\\"}) {
        ASSERT_EQ(Write(L"N"), 1);
        const std::string record = ReadBytes(m_record);
        SetFileAttributesW(m_record.c_str(), FILE_ATTRIBUTE_READONLY);
        EXPECT_EQ(send(m_folder.Text() + end), 0);
        EXPECT_EQ(ReadBytes(vault / L"signlog" / FileNames(vault / L"signlog").back()), record);
        EXPECT_FALSE(fs::exists(m_record));
    }
    WriteBytes(vault / L"Durvell.ini", "[Fault]\r\nSaveFail=*\r\n");
    ASSERT_EQ(Write(L"N"), 1);
    EXPECT_EQ(send(m_folder.Text()), 1);
    EXPECT_FALSE(fs::exists(m_record)) << "a refused log is not kept";

    const TempFolder empty;
    EXPECT_EQ(send(empty.Text()), 1);
    EXPECT_TRUE(GetFileAttributesW((empty / L"SignData").c_str()) & FILE_ATTRIBUTE_HIDDEN);
    const std::string asked = ToUtf8(empty.Text() + L"\\SignData\\DocSignRecord.xml");
    EXPECT_NE(ReadBytes(vault / L"journal.log").find(asked), std::string::npos)
        << "asked without a record, too";
}
