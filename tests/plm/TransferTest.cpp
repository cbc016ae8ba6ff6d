// Silent transfer of document lists and of signature drawings, with faults of the server.
#include "tests/plm/PlmFixture.h"
#include "tests/support/SettingsFile.h"

using namespace tests;

namespace {

class TransferTest : public PlmTest {
protected:
    TransferTest() {
        SetEnvironmentVariableW(L"DURVELL_VAULT", m_vault.c_str());
        for (const char* name : {"r1", "r2", "r3"})
            WriteBytes(m_vault / L"files" / name, std::string("bytes of ") + name);
    }
    ~TransferTest() override { SetEnvironmentVariableW(L"DURVELL_VAULT", nullptr); }

    // Starts the counting of calls anew.
    void SetFault(const wchar_t* key, const std::wstring& value) const {
        static int run = 0;
        const std::filesystem::path file = m_vault / L"Durvell.ini";
        std::filesystem::remove(file);
        WritePrivateProfileStringW(L"Fault", L"Run", std::to_wstring(++run).c_str(), file.c_str());
        WritePrivateProfileStringW(L"Fault", key, value.c_str(), file.c_str());
    }
    // Items r1/1.dwg to r3/3.dwg, among ones that are skipped.
    varnoke::OwnedRecord<SSignFileDUL> ThreeDocuments(const wchar_t* behindFolder = L"") const {
        return NewList(
            m_folder.Text() + behindFolder,
            {{L"", L"x.dwg"}, {L"r1", L"1.dwg"}, {L"r2", L"2.dwg"}, {L"r3", L""}, {L"r3", L"3.dwg"}});
    }
    // States of the items, "." for null.
    static std::wstring States(const SSignFileDUL& list) {
        std::wstring states;
        for (POSITION at = list.m_lstItem.GetHeadPosition(); at;) {
            const SSignFileDULItem* item = list.m_lstItem.GetNext(at);
            states += item ? std::to_wstring(item->m_nState) : L".";
        }
        return states;
    }
    bool TimesRecorded() const { return exists(m_folder / L"SignData" / L"DocSignTimeTag.ini"); }
    void ForgetTimes() const { std::filesystem::remove_all(m_folder / L"SignData"); }

    const std::filesystem::path m_vault = m_folder / L"vault";
};

TEST_F(TransferTest, EachDownloadMayFail) {
    const wchar_t* const states[] = {L".01101", L".00000", L".01000", L".01100"};
    for (int failing = 0; failing <= 3; ++failing) {
        SCOPED_TRACE(failing);
        ForgetTimes();
        for (const wchar_t* name : {L"1.dwg", L"2.dwg", L"3.dwg"})
            WriteBytes(m_folder / name, "old");
        SetFault(L"DownloadFail", std::to_wstring(failing));
        const auto list = ThreeDocuments(failing % 2 ? L"\\" : L"");
        EXPECT_EQ(m_plm.DownloadDocForBackSign(list.get()), failing == 0);
        EXPECT_EQ(States(*list), states[failing]);
        EXPECT_EQ(TimesRecorded(), failing == 0);
        EXPECT_EQ(ReadBytes(m_folder / L"1.dwg"), failing == 1 ? "old" : "bytes of r1");
        EXPECT_EQ(ReadBytes(m_folder / L"3.dwg"), failing == 0 ? "bytes of r3" : "old");
    }
}

TEST_F(TransferTest, LastUploadDecides) {
    for (const wchar_t* name : {L"1.dwg", L"2.dwg", L"3.dwg"})
        WriteBytes(m_folder / name, "new");
    const struct {
        const wchar_t *faults, *states;
        long result;
    } cases[] = {{L"0", L".01101", 1}, {L"1", L".00101", 1},   {L"2", L".01001", 1},
                 {L"3", L".01100", 0}, {L"1|3", L".00100", 0}, {L"*", L".00000", 0}};
    for (const auto& upload : cases) {
        ForgetTimes();
        SetFault(L"UploadFail", upload.faults);
        const auto list = ThreeDocuments();
        EXPECT_EQ(m_plm.UploadDocForBackSign(list.get()), upload.result);
        EXPECT_EQ(States(*list), upload.states);
        EXPECT_TRUE(TimesRecorded());
    }
    EXPECT_EQ(ReadBytes(m_vault / L"files" / L"r1"), "new");
}

TEST_F(TransferTest, UnusableLists) {
    const auto empty = NewList(m_folder.Text(), {}), noFolder = NewList(L"", {{L"r1", L"1.dwg"}});
    empty->m_lstItem.RemoveAll();
    for (SSignFileDUL* list : {static_cast<SSignFileDUL*>(nullptr), empty.get(), noFolder.get()}) {
        EXPECT_EQ(m_plm.DownloadDocForBackSign(list), 0);
        EXPECT_EQ(m_plm.UploadDocForBackSign(list), 0);
        EXPECT_EQ(m_plm.UpdateDocsSignTag(list, 1), 0);
        EXPECT_EQ(m_plm.UpdateDocsSignTimeTag(list), 0);
    }
    EXPECT_EQ(m_plm.DownloadDoc(nullptr), 0);
    EXPECT_EQ(m_plm.UploadDoc(nullptr), 0);
    EXPECT_FALSE(TimesRecorded());

    WriteBytes(m_folder / L"x.dwg", "x");
    const auto skipped = NewList(m_folder.Text(), {{L"", L"x.dwg"}}); // nothing to transfer, still tagged
    EXPECT_EQ(m_plm.DownloadDocForBackSign(skipped.get()), 1);
    EXPECT_TRUE(TimesRecorded());
    ForgetTimes();
    EXPECT_EQ(m_plm.UploadDocForBackSign(skipped.get()), 1);
    EXPECT_TRUE(TimesRecorded());
}

TEST_F(TransferTest, SignatureDrawings) {
    WriteBytes(m_vault / L"objects" / L"USER.xml",
               "<root><objs><type id='USER'><obj><pro name='NAME' value='wang'/><pro name='DEL' value='0'/>"
               "<pro name='LOCATION' value='r2'/></obj></type></objs></root>");
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    const std::filesystem::path drawing = std::filesystem::path(temp) / L"wang_印 1.dwg";
    const auto fetch = [&](const wchar_t* user, const wchar_t* seal) {
        WriteBytes(drawing, "old");
        return m_plm.DownloadSignFileEx(Text(user), Text(seal));
    };
    SetFault(L"QueryFail", L"0");
    EXPECT_EQ(fetch(L"wang", L"印 1"), 1);
    EXPECT_EQ(ReadBytes(drawing), "bytes of r2");
    EXPECT_EQ(fetch(L"li", L"印 1"), 0);
    EXPECT_EQ(fetch(L"", L"s") + fetch(L"wang", L"") + fetch(nullptr, L"s") + fetch(L"wang", nullptr), 0);
    EXPECT_TRUE(exists(drawing)); // untouched
    EXPECT_STREQ(m_plm.GetRemoteFileName(Text(L"wang"), nullptr), L"r2");
    EXPECT_STREQ(m_plm.GetRemoteFileName(Text(L"wa\"ng"), nullptr), L"");
    const std::filesystem::path answer = LibraryFolder() / L"USER.Xml";
    EXPECT_TRUE(create_directory(answer)) << "left behind";
    EXPECT_STREQ(m_plm.GetRemoteFileName(Text(L"wang"), nullptr), L"r2") << "only administrators may write";
    EXPECT_TRUE(std::filesystem::remove(answer));
    const std::string journal = ReadBytes(m_vault / L"journal.log");
    EXPECT_NE(journal.find("li_"), std::string::npos) << "the download is attempted without a name, too";
    EXPECT_NE(journal.find("value=\"wa\"ng\""), std::string::npos);
    SetFault(L"QueryFail", L"*");
    EXPECT_EQ(fetch(L"wang", L"印 1"), 0);
    EXPECT_FALSE(exists(drawing));

    const std::wstring target = (m_folder / L"t.dwg").wstring();
    EXPECT_EQ(m_plm.DownloadSignFile(Text(target), Text(L"r3")), 1);
    EXPECT_EQ(ReadBytes(target), "bytes of r3");
    EXPECT_EQ(m_plm.DownloadSignFile(Text(target), Text(L"")) + m_plm.DownloadSignFile(nullptr, Text(L"r3")),
              0);
    EXPECT_TRUE(std::filesystem::exists(target));
    EXPECT_EQ(m_plm.DownloadSignFile(Text(target), Text(L"none")), 0);
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(TransferTest, PropertyValues) {
    const std::filesystem::path file = m_folder / L"o b#j%41 乙.xml";
    WriteBytes(file, ToUtf8(Message(L"T:A=1,B=<乙;A=2,C=;<obj><pro name='D'/></obj>")));
    const std::pair<const wchar_t*, const wchar_t*> properties[] = {
        {L"A", L"1"}, {L"B", L"<乙"}, {L"C", L""}, {L"D", L""}, {L"a", L""}, {L"", L""}, {L"A\"", L""}};
    for (const auto& [name, value] : properties)
        EXPECT_STREQ(m_plm.GetProValue(file.c_str(), name), value);
    EXPECT_STREQ(m_plm.GetProValue(L"", L"A"), L"");
    EXPECT_STREQ(m_plm.GetProValue((m_folder / L"none.xml").c_str(), L"A"), L"");
}

} // namespace
