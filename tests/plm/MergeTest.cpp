// Merging of a further message into the kept one, and the return file.
#include "tests/plm/PlmFixture.h"
#include <comdef.h>
#include <msxml2.h>

using namespace tests;

namespace {

class MergeTest : public PlmTest {
protected:
    // Also checks that a file that isn't rewritten keeps its bytes.
    void ExpectRefused(const std::wstring& xml) {
        const std::string kept = Kept();
        Results results;
        EXPECT_EQ(Merge(xml, results), 0);
        EXPECT_TRUE(results.AllNull());
        EXPECT_EQ(Kept(), kept);
    }
};

std::wstring With(const std::wstring& login, const std::wstring& steps) {
    return Message(login + steps + Group(L"DOC", Object({L"New"})));
}

TEST_F(MergeTest, AddsNewDocumentsOnly) {
    const struct {
        std::wstring kept, added, handedOut, file;
    } cases[] = {
        {Documents({L"A", L"B"}), Documents({L"a", L"C"}), L"DOC[FNAME=C]",
         L"DOC[FNAME=A][FNAME=B][FNAME=C]"},
        {Documents({L"A", L"B"}), Documents({L"b", L"a", L"A"}), L"DOC", L"DOC[FNAME=A][FNAME=B]"},
        // A name that is new twice is added twice; the first FNAME counts; an object without one is always
        // new.
        {Documents({L"A"}),
         Message(
             kSteps + kLogin +
             Group(L"NEW", Object({L"C", L"fname=A"}) + Object({L"X=A"}) + Object({L"Y=&lt;1", L"fName=C"}))),
         L"NEW[FNAME=C fname=A][X=A][Y=<1 fName=C]", L"DOC[FNAME=A][FNAME=C fname=A][X=A][Y=<1 fName=C]"},
    };
    for (const auto& merge : cases) {
        Results first, second;
        ASSERT_EQ(Read(merge.kept, first), 1);
        EXPECT_EQ(Merge(merge.added, second), 1);
        EXPECT_EQ(Described(second.files), merge.handedOut);
        EXPECT_EQ(FilesIn(m_kept), merge.file);
        EXPECT_EQ(FileCount(), 1u);
    }
    EXPECT_NE(Kept().find("<obj MSYM=\"\"><pro name=\"FNAME\" value=\"C\"/>"), std::string::npos) << Kept();
}

TEST_F(MergeTest, SignerAndStepsMustBeTheSame) {
    const std::wstring login = Group(L"LoginInfo", Object({L"UserName=wang", L"Password=p", L"PLMServer=s"}));
    const std::wstring steps = Group(L"step", Object({L"N=1", L"M=2"}) + Object({L"N=3"}));
    Results first;
    ASSERT_EQ(Read(With(login, steps), first), 1);
    for (const std::wstring& other : {Group(L"step", Object({L"N=3"}) + Object({L"N=1", L"M=2"})),
                                      Group(L"step", Object({L"N=1", L"M=2"})),
                                      Group(L"step", Object({L"M=2", L"N=1"}) + Object({L"N=3"})),
                                      Group(L"step", Object({L"N=1"}) + Object({L"N=3"})),
                                      Group(L"step", Object({L"N=1", L"M=3"}) + Object({L"N=3"})),
                                      Group(L"step", Object({L"N=1", L"X=2"}) + Object({L"N=3"}))})
        ExpectRefused(With(login, other));
    for (const wchar_t* user : {L"UserName=li", L"UserName="})
        ExpectRefused(With(Group(L"LoginInfo", Object({user, L"Password=p", L"PLMServer=s"})), steps));
    ExpectRefused(L"<root>");

    Results results;
    const std::wstring sameUser =
        Group(L"LoginInfo", Object({L"UserName=WANG", L"Password=new", L"PLMServer=t"}));
    EXPECT_EQ(Merge(With(sameUser, Group(L"step", Object({L"n=1", L"m=2"}) + Object({L"N=3"}))), results), 1);
    EXPECT_EQ(Described(results.login), L"WANG/new/t");
    EXPECT_EQ(Described(results.steps), L"[n=1 m=2][N=3]");
}

TEST_F(MergeTest, KeptMessageMustBeThere) {
    Results missing;
    EXPECT_EQ(Merge(Documents({L"A"}), missing), 0);
    EXPECT_EQ(Call(&CPLMInteract::AppendStartSign, Documents({L"A"}), missing), 0);
    EXPECT_TRUE(missing.AllNull());
    for (const char* bytes : {"", "<root>", "<root/>"}) {
        WriteBytes(m_kept, bytes);
        ExpectRefused(Documents({L"A"}));
    }
    Results first, second;
    ASSERT_EQ(Read(Documents({L"A"}), first), 1);
    SetFileAttributesW(m_kept.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Merge(Documents({L"B"}), second), 1);
    EXPECT_EQ(FilesIn(m_kept), L"DOC[FNAME=A][FNAME=B]");
}

TEST_F(MergeTest, RecordsOfTheHost) {
    SLoginInfo wang{L"wang", L"", L""}, nobody;
    EXPECT_EQ(m_plm.ValidateLoginInfo(&wang, &wang), 1);
    EXPECT_EQ(m_plm.ValidateLoginInfo(&nobody, &nobody), 0);
    EXPECT_EQ(m_plm.ValidateLoginInfo(&wang, nullptr), 0);

    Results results;
    ASSERT_EQ(Read(Documents({L"A"}), results), 1);
    SSignType empty;
    EXPECT_EQ(m_plm.ValidateSignStepType(&empty, &empty), 0);
    EXPECT_EQ(m_plm.ValidateSignStepType(nullptr, results.steps), 0);
    EXPECT_EQ(m_plm.RemoveExistSignFileTypeFromSource(nullptr, results.files), 0);
    EXPECT_EQ(m_plm.RemoveExistSignFileTypeFromSource(results.files, &empty), 1);
    EXPECT_EQ(results.files->m_lstObj.GetCount(), 1);
    EXPECT_EQ(m_plm.AppendSignFileTypeToTarget(nullptr, &empty), 0);
    results.steps->m_lstObj.AddTail(static_cast<SSignObj*>(nullptr)); // compared like any other
    EXPECT_EQ(m_plm.ValidateSignStepType(results.steps, results.steps), 0);
}

TEST_F(MergeTest, TargetAttribute) {
    CLSID dom;
    ASSERT_EQ(CLSIDFromProgID(L"Msxml2.DOMDocument.6.0", &dom), S_OK);
    _com_ptr_t<_com_IIID<IXMLDOMDocument, &IID_IXMLDOMDocument>> document;
    _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>> element;
    _com_ptr_t<_com_IIID<IXMLDOMNamedNodeMap, &IID_IXMLDOMNamedNodeMap>> map;
    ASSERT_EQ(document.CreateInstance(dom), S_OK);
    ASSERT_EQ(document->createElement(_bstr_t(L"obj"), &element), S_OK);
    ASSERT_EQ(element->get_attributes(&map), S_OK);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"1"), map, document), 1);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"<2>"), map, document), 1);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"b"), Text(L""), map, document), 1);
    _bstr_t xml;
    ASSERT_EQ(element->get_xml(xml.GetAddress()), S_OK);
    EXPECT_STREQ(xml, L"<obj a=\"&lt;2&gt;\" b=\"\"/>");
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L""), Text(L"1"), map, document), 0);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), nullptr, map, document), 0);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"1"), nullptr, document), 0);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"1"), map, nullptr), 0);
}

class ReturnFileTest : public PlmTest {
protected:
    long Notify(const std::vector<const wchar_t*>& names, const wchar_t* key, const std::wstring& file) {
        CStringList list;
        for (const wchar_t* name : names)
            list.AddTail(name);
        return m_plm.NotifyPLMSignForBackSignRet(list, Text(key), Text(m_folder.Text()), Text(file));
    }
    const std::filesystem::path m_ret = m_folder / L"r.x" / L"back_Ret.Xml";
    const std::wstring m_given = (m_folder / L"r.x" / L"back.xml").wstring();
};

TEST_F(ReturnFileTest, MarksDocuments) {
    const struct {
        std::vector<const wchar_t*> names;
        std::wstring marks;
    } cases[] = {
        {{L"", L"b.DWG"}, L"[0][1][0]"}, {{}, L"[0][0][0]"}, {{L"1"}, L"[0][0][1]"}, {{L""}, L"[0][0][0]"}};
    Results results;
    ASSERT_EQ(Read(Message(kLogin + kSteps +
                           Group(L"DOC", Object({L"A.dwg"}) + Object({L"X=b.dwg", L"B.dwg"}) +
                                             Object({L"C.dwg", L"fname=1", L"FNAME="})) +
                           Group(L"OTHER", Object({L"b.dwg"}))),
                   results),
              1);
    const std::string kept = Kept();
    WriteBytes(m_ret, "old");
    for (const auto& run : cases) {
        SetFileAttributesW(m_ret.c_str(), FILE_ATTRIBUTE_READONLY);
        ASSERT_EQ(Notify(run.names, L"fName", m_given), 1);
        const std::wstring text = FromUtf8(ReadBytes(m_ret));
        std::wstring marks;
        const std::wstring mark = L"<pro name=\"SignRet\" value=\"";
        for (size_t at = text.find(mark); at != std::wstring::npos; at = text.find(mark, at + 1))
            marks += L"[" + text.substr(at + mark.size(), 1) + L"]";
        EXPECT_EQ(marks, run.marks);
        EXPECT_EQ(text.find(L"LoginInfo"), std::wstring::npos);
        EXPECT_EQ(text.find(L"step"), std::wstring::npos);
        EXPECT_NE(text.find(L"OTHER"), std::wstring::npos);
    }
    EXPECT_EQ(Kept(), kept);
    for (const auto& [key, file] :
         {std::pair(L"", m_given), std::pair<const wchar_t*, std::wstring>(nullptr, m_given),
          std::pair(L"FNAME", std::wstring()), std::pair(L"FNAME", m_folder.Text() + L"\\no\\x.y")})
        EXPECT_EQ(Notify({}, key, file), 0);
    // A path without a full stop is cut to nothing.
    const std::filesystem::path current = std::filesystem::current_path();
    current_path(m_folder.Path());
    EXPECT_EQ(Notify({}, L"FNAME", L"back"), 1);
    current_path(current);
    EXPECT_TRUE(exists(m_folder / L"_Ret.Xml"));
}

TEST_F(ReturnFileTest, IncompleteMessageGivesNoFile) {
    create_directories(m_ret.parent_path());
    EXPECT_EQ(Notify({}, L"FNAME", m_given), 0); // nothing kept
    for (const std::wstring& groups :
         {kSteps + Group(L"DOC", Object({L"A"})), kLogin + Group(L"DOC", Object({L"A"})), kLogin + kSteps,
          kLogin + kSteps + Group(L"DOC", L""), kLogin + kSteps + Group(L"DOC", Object({L"A"}) + L"<obj/>"),
          kLogin + kSteps + Group(L"DOC", L"<obj><pro name='N'/></obj>")}) {
        Results results;
        Read(Message(groups), results);
        EXPECT_EQ(Notify({}, L"FNAME", m_given), 0);
        EXPECT_FALSE(exists(m_ret));
    }
}

} // namespace
