// Which cause a refused message or transfer names. Wine's parser tells no line of a message.
#include <functional>
#include "tests/plm/PlmFixture.h"
#include "varnoke/Cause.h"

using namespace tests;
using varnoke::Cause;

namespace {

class CauseTest : public PlmTest {
protected:
    // The code and the text of the last cause.
    static std::pair<Cause, std::wstring> Last() {
        long code = 0;
        wchar_t text[600];
        Cmn_GetLastCause(&code, text, 600);
        return {static_cast<Cause>(code), text};
    }
};

TEST_F(CauseTest, Message_NamesWhatItLacks) {
    const std::wstring both = kLogin + kSteps;
    const struct {
        Operation operation;
        std::wstring message;
        Cause cause;
        const wchar_t* told;
    } kCases[] = {
        {kMerge, Documents(L"A"), Cause::KeptMessageMissing, L"StartSign.Xml"},
        {kRead, L"", Cause::ArgumentMissing, L"message"},
        {kRead, L"<root>\n<secret></root>", Cause::MessageNotWellFormed, L"XML："},
        {kRead, Message(kSteps + L"DOC:A"), Cause::LoginMissing, L""},
        {kRead, Message(L"LoginInfo:UserName=a|" + kSteps + L"DOC:A"), Cause::LoginIncomplete, L""},
        {kRead, Message(kLogin + L"DOC:A"), Cause::StepsMissing, L""},
        {kRead, Message(both), Cause::DocumentsMissing, L""},
        {kRead, Message(both + L"DOC:"), Cause::DocumentsMissing, L"DOC"},
        {kRead, Message(both + L"<type/>|DOC:A"), Cause::GroupWithoutId, L""},
        {kRead, Message(both + L"DOC:A;-"), Cause::ObjectEmpty, L""},
        {kRead, Message(both + L"DOC:<obj><pro name='N'/></obj>"), Cause::PropertyIncomplete, L""},
        {kRead, Documents(L"A"), Cause::None, L""},
        {kMerge, Message(L"LoginInfo:UserName=x,Password=p,PLMServer=s|" + kSteps + L"DOC:A"),
         Cause::OtherSigner, L""},
        {kMerge, Message(kLogin + L"step:STEP=x|DOC:A"), Cause::OtherSteps, L""},
        {&CPLMInteract::AppendStartSign, Documents(L"A"), Cause::NothingNew, L""},
    };
    for (const auto& c : kCases) {
        SCOPED_TRACE(ToUtf8(c.message));
        Results results;
        EXPECT_EQ(Call(c.operation, c.message, results, m_folder.Text()), c.cause == Cause::None);
        EXPECT_EQ(Last().first, c.cause) << ToUtf8(Last().second);
        EXPECT_NE(Last().second.find(c.told), std::wstring::npos) << ToUtf8(Last().second);
    }
    WriteBytes(m_kept, "<root>");
    Results results;
    EXPECT_EQ(Merge(Documents(L"B"), results), 0);
    EXPECT_EQ(Last().first, Cause::KeptMessageUnreadable);
    EXPECT_EQ(Kept(), "<root>");
    std::filesystem::remove_all(m_kept.parent_path());
    WriteBytes(m_kept.parent_path(), "a file in the folder's place");
    EXPECT_EQ(Read(Documents(L"B")), 0);
    EXPECT_EQ(Last().first, Cause::MessageNotKept);
}

TEST_F(CauseTest, Transfer_NamesTheFileAndTheServersResult) {
    EXPECT_EQ(m_plm.UploadDocForBackSign(nullptr), 0);
    EXPECT_EQ(Last().first, Cause::ListUnusable);
    const auto list = NewList(m_folder.Text(), {{L"none.dwg", L"none.dwg"}});
    EXPECT_EQ(m_plm.DownloadDocForBackSign(list.get()), 0);
    EXPECT_EQ(Last().first, Cause::DownloadFailed);
    EXPECT_NE(Last().second.find(L"none.dwg（"), std::wstring::npos) << ToUtf8(Last().second);
    EXPECT_EQ(m_plm.UploadDocForBackSign(list.get()), 0);
    EXPECT_EQ(Last().first, Cause::UploadFailed);
    EXPECT_EQ(m_plm.DownloadSignFileEx(Text(L"nobody"), Text(L"s")), 0);
    EXPECT_EQ(Last().first, Cause::DrawingNotFound);
}

TEST_F(CauseTest, Documents_NameWhatIsMissing) {
    CStringList none;
    SSignObj object;
    const struct {
        Cause cause;
        std::function<long()> call;
        long result = 0;
    } kCases[] = {
        {Cause::ArgumentMissing, [&] { return m_plm.SetDocSignTag(Text(m_folder.Text()), nullptr, 1); }},
        {Cause::DocumentMissing,
         [&] { return m_plm.SetDocSignTimeTag(Text(m_folder.Text()), Text(L"a.dwg")); }},
        {Cause::ListUnusable, [&] { return m_plm.UpdateDocsSignTag(nullptr, 1); }},
        {Cause::KeptMessageMissing,
         [&] {
             return m_plm.NotifyPLMSignForBackSignRet(none, Text(L"FNAME"), Text(m_folder.Text()),
                                                      Text(L"r.xml"));
         }},
        {Cause::ModelConfigNotLoaded, [&] { return m_plm.WriteDelOrSignLogToLocal(&object, L"C:\\", L"N"); }},
        {Cause::SignLogNotSent, [&] { return m_plm.WriteSignLogToServer(m_folder.Text().c_str()); }, 1},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(c.call(), c.result);
        EXPECT_EQ(Last().first, c.cause) << ToUtf8(Last().second);
    }
}

} // namespace
