// Reading of start-sign messages and the kept copy.
#include "tests/plm/PlmFixture.h"
#include "tests/support/MemoryUse.h"

using namespace tests;

namespace {

class MessageTest : public PlmTest {};

TEST_F(MessageTest, Records) {
    const std::wstring both = kLogin + kSteps, step = L":STEP=审核";
    const struct {
        std::wstring groups, login, steps, files; // nothing expected: the message is refused
    } cases[] = {
        {both + L"图纸:X=1,A & 乙;B,B,E=", L"wang/p/s", step, L"图纸:X=1,A & 乙;B,B,E="},
        {L"LoginInfo:username=u,MORE=1,PASSWORD=,plmserver=s|step:S=1|DOC:A", L"u//s", L":S=1", L"DOC:A"},
        // Login properties are counted, and only those of the first object.
        {L"LoginInfo:UserName=a,UserName=b,Password=p|step:S=1|DOC:A", L"b/p/", L":S=1", L"DOC:A"},
        {L"LoginInfo:UserName=a,UserName=b,Password=p,PLMServer=s|step:S=1|DOC:A", L"", L"", L""},
        {L"LoginInfo:UserName=a;UserName=a,Password=p,PLMServer=s|step:S=1|DOC:A", L"", L"", L""},
        // Steps come from all groups of that name, documents from the first of any other name.
        {L"DOC:A|" + kSteps + L"MORE:B|" + kLogin + L"<type/>|step:S=2", L"wang/p/s", step + L";S=2",
         L"DOC:A"},
        {L"STEP:|" + both + L"DOC:<x><y name='N' value='V'/></x>", L"wang/p/s", step, L"DOC:N=V"},
        {kLogin + L"Step:S=1|DOC:A", L"", L"", L""},
        // What is missing or empty.
        {L"LoginInfo:-|step:S=1|DOC:A", L"", L"", L""},
        {kLogin + L"step:|DOC:A", L"", L"", L""},
        {kLogin + L"step:-|DOC:A", L"", L"", L""},
        {both + L"DOC:|MORE:A", L"", L"", L""},
        {kLogin + L"step:<obj><pro value='V'/></obj>|DOC:A", L"", L"", L""},
        {both + L"DOC:<obj><pro Name='N' value='V'/></obj>", L"", L"", L""},
    };
    for (const auto& message : cases) {
        SCOPED_TRACE(ToUtf8(message.groups));
        Results results;
        EXPECT_EQ(Call(kRead, Message(message.groups), results, m_folder.Text()), !message.login.empty());
        EXPECT_EQ(Described(results.login), message.login);
        EXPECT_EQ(Described(results.steps), message.steps);
        EXPECT_EQ(Described(results.files), message.files);
        EXPECT_EQ(FileCount(), 1u);
    }
}

TEST_F(MessageTest, RefusedTextLeavesKeptMessage) {
    ASSERT_EQ(Read(Documents(L"A")), 1);
    const std::string kept = Kept();
    const std::wstring message = Documents(L"B");
    for (const std::wstring& text : {message.substr(0, message.size() - 9), std::wstring(L"no XML"),
                                     L"<!DOCTYPE root [<!ENTITY e 'x'>]>" + message,
                                     L"<!DOCTYPE root SYSTEM 'file:///c:/nothing.dtd'>" + message}) {
        Results results;
        EXPECT_EQ(Call(kRead, text, results, m_folder.Text()), 0);
        EXPECT_TRUE(results.AllNull());
        EXPECT_EQ(Kept(), kept);
    }
    EXPECT_EQ(Read(Message(L"")), 0); // well-formed, so it is kept
    EXPECT_NE(Kept(), kept);
}

TEST_F(MessageTest, ArgumentsAreCheckedInOrder) {
    const std::wstring good = Documents(L"A"), folder = m_folder.Text();
    const struct {
        const wchar_t *xml, *folder;
        int outPointers; // so many are passed
    } cases[] = {{nullptr, folder.c_str(), 3},      {L"", folder.c_str(), 3},
                 {good.c_str(), nullptr, 3},        {good.c_str(), L"", 3},
                 {good.c_str(), folder.c_str(), 0}, {good.c_str(), folder.c_str(), 1},
                 {good.c_str(), folder.c_str(), 2}};
    for (const Operation operation :
         {kRead, kMerge, Operation(&CPLMInteract::ParserStartSignXmlString),
          Operation(&CPLMInteract::StartSign), Operation(&CPLMInteract::AppendStartSign)}) {
        for (const auto& [xml, where, count] : cases) {
            Results results;
            SLoginInfo** const login = count > 0 ? &results.login : nullptr;
            SSignType** const steps = count > 1 ? &results.steps : nullptr;
            SSignType** const files = count > 2 ? &results.files : nullptr;
            EXPECT_EQ((m_plm.*operation)(Text(xml), Text(where), login, steps, files), 0);
            EXPECT_EQ(results.login == nullptr, count == 1 || count == 2);
            EXPECT_EQ(results.steps == nullptr, count == 2);
            EXPECT_NE(results.files, nullptr);
            EXPECT_FALSE(exists(m_kept.parent_path()));
        }
    }
}

TEST_F(MessageTest, ReadersAndConfiguration) {
    Results results;
    EXPECT_EQ(m_plm.GetLoginInfo(nullptr, nullptr), 0);
    EXPECT_EQ(m_plm.GetLoginInfo(nullptr, &results.login), 0);
    EXPECT_EQ(m_plm.GetSignStepType(nullptr, &results.steps), 0);
    EXPECT_EQ(m_plm.GetSignFileType(nullptr, &results.files), 0);
    EXPECT_TRUE(results.AllNull());
    CModelConfig *first = nullptr, *second = nullptr;
    EXPECT_EQ(m_plm.GetModelConfig(nullptr), 0);
    EXPECT_EQ(m_plm.GetModelConfig(&first) + m_plm.GetModelConfig(&second), 2);
    EXPECT_TRUE(first && first == second);
}

TEST_F(MessageTest, WorkFolders) {
    for (const wchar_t* name : {L"plain", L"slash\\", L"a#b %41+c", L"图纸 工作"}) {
        const std::filesystem::path folder = m_folder / name, signData = folder / L"SignData";
        create_directories(folder);
        Results first, second;
        EXPECT_EQ(Call(kRead, Documents(L"A"), first, folder.wstring()), 1);
        EXPECT_EQ(Call(kMerge, Documents(L"B"), second, folder.wstring()), 1);
        EXPECT_EQ(DocumentsIn(signData / L"StartSign.Xml"), L"DOC:A;B");
        EXPECT_TRUE(GetFileAttributesW(signData.c_str()) & FILE_ATTRIBUTE_HIDDEN);
    }
    WriteBytes(m_folder / L"file", "");
    for (const wchar_t* name : {L"missing", L"file"}) {
        Results results;
        EXPECT_EQ(Call(kRead, Documents(L"A"), results, (m_folder / name).wstring()), 0);
        EXPECT_TRUE(results.AllNull());
    }
}

TEST_F(MessageTest, Declarations) {
    for (const wchar_t* mark : {L"", L"\xFEFF"}) {
        for (const wchar_t* rest : {L"", L" encoding='UTF-16'", L" encoding = \"gbk\" standalone='yes'",
                                    L"\tencoding='GB2312' ", L" encoding='utf-8'"}) {
            SCOPED_TRACE(ToUtf8(rest));
            const std::wstring declaration = std::wstring(mark) + L"<?xml version='1.0'" + rest + L"?>";
            EXPECT_EQ(Read(declaration + Documents(L"图")), 1);
            EXPECT_EQ(DocumentsIn(m_kept), L"DOC:图");
            Results merged; // reads the kept message as a file
            EXPECT_EQ(Merge(declaration + Documents(L"乙"), merged), 1);
            EXPECT_EQ(DocumentsIn(m_kept), L"DOC:图;乙");
        }
    }
    EXPECT_EQ(Read(Documents(L"A")), 1);
    for (const wchar_t* declaration :
         {L"<?xml encoding='gbk'?>", L"<?xml version=1.0?>", L"<?xml version='1.0' encoding=gbk?>",
          L"<?xml version='1.0' encoding='gbk' encoding='gbk'?>", L"<?xml nonsense?>",
          L"<?xml version='1.0'?><?xml version='1.0'?>", L" <?xml version='1.0'?>"}) {
        EXPECT_EQ(Read(declaration + Documents(L"B")), 0) << ToUtf8(declaration);
        EXPECT_EQ(DocumentsIn(m_kept), L"DOC:A");
    }
    for (const wchar_t* text : {L"\xD800", L"\xDC00", L"\xD800x"})
        EXPECT_EQ(Read(Documents(text)), 0) << "half a character";
    EXPECT_EQ(Read(Documents(L"𠀀")), 1);
}

TEST_F(MessageTest, KeptMessage_IsReplacedAsAWhole) {
    ASSERT_EQ(Read(Documents(L"A")), 1);
    const std::filesystem::path other = m_folder / L"other", another = m_folder / L"another",
                                left = m_kept.parent_path() / L"~varnoke-7fff0-1.tmp";
    ASSERT_TRUE(CreateHardLinkW(other.c_str(), m_kept.c_str(), nullptr));
    const std::string before = Kept();
    SetFileAttributesW(m_kept.c_str(), FILE_ATTRIBUTE_READONLY);
    ASSERT_EQ(Read(Documents(L"B")), 1);
    EXPECT_EQ(ReadBytes(other), before);
    EXPECT_EQ(GetFileAttributesW(m_kept.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
    Results merged, elsewhere;
    ASSERT_TRUE(CreateHardLinkW(another.c_str(), m_kept.c_str(), nullptr));
    SetFileAttributesW(m_kept.c_str(), FILE_ATTRIBUTE_READONLY);
    ASSERT_EQ(Merge(Documents(L"C"), merged), 1);
    EXPECT_NE(ReadBytes(another), Kept());
    EXPECT_EQ(GetFileAttributesW(m_kept.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);

    // What a killed run left goes when a run turns to the folder.
    const TempFolder folder;
    ASSERT_EQ(Call(kRead, Documents(L"A"), elsewhere, folder.Text()), 1);
    WriteBytes(left, "");
    ASSERT_EQ(Read(Documents(L"B")), 1);
    EXPECT_FALSE(exists(left));
}

TEST_F(MessageTest, RefusedMessagesLeaveNoRecords) {
    ASSERT_EQ(Read(Documents(L"A")), 1);
    const std::wstring big(200000, L'x'), login = L"LoginInfo:UserName=" + big + L",Password=,PLMServer=|";
    const std::wstring groups[] = {login + L"step:|DOC:A", login + L"step:S=" + big + L";-|DOC:A",
                                   login + L"step:S=" + big + L"|DOC:" + big + L";-"};
    const std::wstring otherSteps = kLogin + L"step:S=" + big + L"|DOC:" + big;
    const TempFolder other;
    const auto refuse = [&] {
        for (const std::wstring& group : groups) {
            Results merged, read;
            EXPECT_EQ(Merge(Message(group), merged), 0);
            EXPECT_EQ(Call(kRead, Message(group), read, other.Text()), 0);
        }
        Results merged, known;
        EXPECT_EQ(Merge(Message(otherSteps), merged), 0);
        EXPECT_EQ(Merge(Documents(L"A,X=" + big), known), 1);
    };
    EXPECT_LT(MemoryGrowth(15, refuse), 5 << 20) << "one text left behind each time makes 6 MB";
}

TEST_F(MessageTest, BigMessages) {
    Results many, big;
    std::wstring objects, bigObjects;
    for (int i = 0; i < 10000; ++i)
        objects += L"n;";
    for (int i = 0; i < 55000; ++i)
        bigObjects += std::wstring(200, L'v') + L";"; // 11 MB as UTF-8
    ASSERT_EQ(Call(kRead, Documents(objects), many, m_folder.Text()), 1);
    EXPECT_EQ(many.files->m_lstObj.GetCount(), 10000);
    ASSERT_EQ(Call(kRead, Documents(bigObjects), big, m_folder.Text()), 1);
    EXPECT_EQ(Described(big.files) + L";", L"DOC:" + bigObjects);
}

} // namespace
