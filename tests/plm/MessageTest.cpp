// Reading of start-sign messages and the kept copy.
#include "tests/plm/PlmFixture.h"

using namespace tests;

namespace {

class MessageTest : public PlmTest {};

const std::wstring kDocument = Group(L"DOC", Object({L"A"}));

struct ReadCase {
    const char* what;
    std::wstring groups;
    std::wstring login = {}, steps = {}, files = {}; // all empty: the message is refused
};

const ReadCase kReadCases[] = {
    {"order and free properties",
     kLogin + kSteps + Group(L"图纸", Object({L"X=1", L"A &amp; 乙.dwg"}) + Object({L"B", L"B", L"E="})),
     L"wang/p/s", L"[STEP=审核]", L"图纸[X=1 FNAME=A & 乙.dwg][FNAME=B FNAME=B E=]"},
    {"login names in any case, others ignored",
     Group(L"LoginInfo", Object({L"username=u", L"MORE=1", L"PASSWORD=", L"plmserver=s"})) + kSteps +
         kDocument,
     L"u//s", L"[STEP=审核]", L"DOC[FNAME=A]"},
    {"repeated login name in place of another",
     Group(L"LoginInfo", Object({L"UserName=a", L"UserName=b", L"Password=p"})) + kSteps + kDocument, L"b/p/",
     L"[STEP=审核]", L"DOC[FNAME=A]"},
    {"repeated login name besides the others",
     Group(L"LoginInfo", Object({L"UserName=a", L"UserName=b", L"Password=p", L"PLMServer=s"})) + kSteps +
         kDocument},
    {"first login object counts",
     Group(L"LoginInfo", Object({L"UserName=a"}) + Object({})) + kSteps + kDocument},
    {"documents first, steps in two groups, second document group ignored",
     kDocument + kSteps + Group(L"OTHER", L"<obj/>") + kLogin + L"<type/>" + kSteps, L"wang/p/s",
     L"[STEP=审核][STEP=审核]", L"DOC[FNAME=A]"},
    {"any element is a document and a property",
     kLogin + kSteps + Group(L"DOC", L"<x><y name='N' value='V'/></x>"), L"wang/p/s", L"[STEP=审核]",
     L"DOC[N=V]"},
    {"steps under Step are neither steps nor documents",
     kLogin + Group(L"Step", Object({L"S=1"})) + kDocument},
    {"Step is skipped beside step", Group(L"STEP", L"") + kLogin + kSteps + kDocument, L"wang/p/s",
     L"[STEP=审核]", L"DOC[FNAME=A]"},
    {"group without identifier before the documents", kLogin + kSteps + L"<type/>" + kDocument},
    {"no login", kSteps + kDocument},
    {"empty login", Group(L"LoginInfo", L"<obj/>") + kSteps + kDocument},
    {"no step object", kLogin + Group(L"step", L"") + kDocument},
    {"step without properties", kLogin + Group(L"step", L"<obj/>") + kDocument},
    {"no documents", kLogin + kSteps},
    {"empty document group", kLogin + kSteps + Group(L"DOC", L"") + kDocument},
    {"document without properties", kLogin + kSteps + Group(L"DOC", Object({L"A"}) + L"<obj/>")},
    {"property without value", kLogin + kSteps + Group(L"DOC", L"<obj><pro name='N'/></obj>")},
    {"property without name", kLogin + Group(L"step", L"<obj><pro value='V'/></obj>") + kDocument},
    {"names are case-sensitive in XML",
     kLogin + kSteps + Group(L"DOC", L"<obj><pro Name='N' value='V'/></obj>")},
};

TEST_F(MessageTest, Records) {
    for (const ReadCase& message : kReadCases) {
        SCOPED_TRACE(message.what);
        const bool complete = !message.login.empty();
        Results results;
        EXPECT_EQ(Read(Message(message.groups), results), complete);
        EXPECT_EQ(Described(results.login), complete ? message.login : L"none");
        EXPECT_EQ(Described(results.steps), complete ? message.steps : L"none");
        EXPECT_EQ(Described(results.files), complete ? message.files : L"none");
        EXPECT_EQ(FileCount(), 1u);
    }
}

TEST_F(MessageTest, RefusedTextLeavesKeptMessage) {
    Results first;
    ASSERT_EQ(Read(Documents({L"A"}), first), 1);
    const std::string kept = Kept();
    const std::wstring message = Documents({L"B"});
    for (const std::wstring& text : {message.substr(0, message.size() - 9), std::wstring(L"no XML"),
                                     L"<!DOCTYPE root [<!ENTITY e 'x'>]>" + message,
                                     L"<!DOCTYPE root SYSTEM 'file:///c:/nothing.dtd'>" + message}) {
        Results results;
        EXPECT_EQ(Read(text, results), 0);
        EXPECT_TRUE(results.AllNull());
        EXPECT_EQ(Kept(), kept);
    }
    Results incomplete; // well-formed, so it is kept
    EXPECT_EQ(Read(Message(L""), incomplete), 0);
    EXPECT_NE(Kept(), kept);
}

TEST_F(MessageTest, ArgumentsAreCheckedInOrder) {
    const std::wstring good = Documents({L"A"}), folder = m_folder.Text();
    const struct {
        const wchar_t *xml, *folder;
        int outPointers; // so many are passed
    } cases[] = {{nullptr, folder.c_str(), 3},      {L"", folder.c_str(), 3},
                 {good.c_str(), nullptr, 3},        {good.c_str(), L"", 3},
                 {good.c_str(), folder.c_str(), 0}, {good.c_str(), folder.c_str(), 1},
                 {good.c_str(), folder.c_str(), 2}};
    for (const Operation operation :
         {&CPLMInteract::ParserStartSignXmlString, &CPLMInteract::AppendParserStartSignXmlString,
          &CPLMInteract::StartSign, &CPLMInteract::StartSignForBackSign, &CPLMInteract::AppendStartSign}) {
        for (const auto& call : cases) {
            Results results;
            const int count = call.outPointers;
            EXPECT_EQ((m_plm.*
                       operation)(Text(call.xml), Text(call.folder), count > 0 ? &results.login : nullptr,
                                  count > 1 ? &results.steps : nullptr, count > 2 ? &results.files : nullptr),
                      0);
            EXPECT_EQ(results.login == nullptr, count == 1 || count == 2);
            EXPECT_EQ(results.steps == nullptr, count == 2);
            EXPECT_NE(results.files, nullptr);
            EXPECT_FALSE(std::filesystem::exists(m_kept.parent_path()));
        }
    }
}

TEST_F(MessageTest, ReadersAndConfiguration) {
    EXPECT_EQ(m_plm.GetLoginInfo(nullptr, nullptr), 0);
    Results results;
    EXPECT_EQ(m_plm.GetLoginInfo(nullptr, &results.login), 0);
    EXPECT_EQ(m_plm.GetSignStepType(nullptr, &results.steps), 0);
    EXPECT_EQ(m_plm.GetSignFileType(nullptr, &results.files), 0);
    EXPECT_TRUE(results.AllNull());
    CModelConfig *first = nullptr, *second = nullptr;
    EXPECT_EQ(m_plm.GetModelConfig(nullptr), 0);
    EXPECT_EQ(m_plm.GetModelConfig(&first), 1);
    EXPECT_EQ(m_plm.GetModelConfig(&second), 1);
    EXPECT_TRUE(first && first == second);
}

TEST_F(MessageTest, WorkFolders) {
    for (const wchar_t* name : {L"plain", L"slash\\", L"a#b %41+c", L"图纸 工作"}) {
        const std::filesystem::path folder = m_folder / name;
        create_directories(folder);
        Results results, merged;
        EXPECT_EQ(m_plm.StartSignForBackSign(Text(Documents({L"A"})), Text(folder.wstring()), &results.login,
                                             &results.steps, &results.files),
                  1);
        EXPECT_EQ(m_plm.AppendParserStartSignXmlString(Text(Documents({L"B"})), Text(folder.wstring()),
                                                       &merged.login, &merged.steps, &merged.files),
                  1);
        EXPECT_EQ(FilesIn(folder / L"SignData" / L"StartSign.Xml"), L"DOC[FNAME=A][FNAME=B]");
        EXPECT_EQ(GetFileAttributesW((folder / L"SignData").c_str()) & FILE_ATTRIBUTE_HIDDEN,
                  FILE_ATTRIBUTE_HIDDEN);
    }
    WriteBytes(m_folder / L"file", "");
    for (const wchar_t* name : {L"missing", L"file"}) {
        Results results;
        EXPECT_EQ(m_plm.StartSignForBackSign(Text(Documents({L"A"})), Text((m_folder / name).wstring()),
                                             &results.login, &results.steps, &results.files),
                  0);
        EXPECT_TRUE(results.AllNull());
    }
}

TEST_F(MessageTest, ReadOnlyKeptMessageIsReplaced) {
    WriteBytes(m_kept, "old");
    SetFileAttributesW(m_kept.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    Results results;
    EXPECT_EQ(Read(Documents({L"A"}), results), 1);
    EXPECT_EQ(FilesIn(m_kept), L"DOC[FNAME=A]");
    EXPECT_EQ(FileCount(), 1u);
    // A folder in the file's place can't be replaced.
    std::filesystem::remove(m_kept);
    std::filesystem::create_directory(m_kept);
    Results refused;
    EXPECT_EQ(Read(Documents({L"A"}), refused), 0);
    EXPECT_TRUE(refused.AllNull());
    EXPECT_EQ(FileCount(), 1u);
}

TEST_F(MessageTest, BigMessages) {
    Results many, long_;
    std::vector<std::wstring> names(10000, L"n");
    ASSERT_EQ(Read(Documents(names), many), 1);
    EXPECT_EQ(many.files->m_lstObj.GetCount(), 10000);
    const std::wstring value(2'000'000, L'值');
    ASSERT_EQ(Read(Documents({value, value}), long_), 1);
    EXPECT_TRUE(long_.files->m_lstObj.GetHead()->GetHead()->m_strValue == value.c_str());
}

} // namespace
