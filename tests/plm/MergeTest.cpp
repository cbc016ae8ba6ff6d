// Merging of a further message into the kept one, and the return file.
#include "tests/plm/PlmFixture.h"
#include <comdef.h>
#include <msxml2.h>

using namespace tests;

namespace {

class MergeTest : public PlmTest {
protected:
    // Also checks that the kept file isn't touched.
    void ExpectRefused(const std::wstring& xml) {
        const std::string kept = Kept();
        Results results;
        EXPECT_EQ(Merge(xml, results), 0) << ToUtf8(xml);
        EXPECT_TRUE(results.AllNull());
        EXPECT_EQ(Kept(), kept);
    }
};

TEST_F(MergeTest, AddsNewDocumentsOnly) {
    const struct {
        const wchar_t *kept, *added, *handedOut, *file;
    } cases[] = {
        // Names are compared as the file system compares them.
        {L"Ähre.dwg;Жук", L"äHRE.DWG;жУК;ß;SS", L"DOC:ß;SS", L"DOC:Ähre.dwg;Жук;ß;SS"},
        {L"A;B", L"a;C", L"DOC:C", L"DOC:A;B;C"},
        {L"A;B", L"b;a;A", L"DOC:", L"DOC:A;B"},
        // A name that is new twice is added twice; the first FNAME counts; without one an object is new.
        {L"A", L"C,fname=A;X=A;Y=<1,fName=C", L"DOC:C,fname=A;X=A;Y=<1,fName=C",
         L"DOC:A;C,fname=A;X=A;Y=<1,fName=C"},
    };
    for (const auto& merge : cases) {
        ASSERT_EQ(Read(Documents(merge.kept)), 1);
        Results results;
        EXPECT_EQ(Merge(Documents(merge.added), results), 1);
        EXPECT_EQ(Described(results.files), merge.handedOut);
        EXPECT_EQ(DocumentsIn(m_kept), merge.file);
        EXPECT_EQ(FileCount(), 1u);
    }
    EXPECT_NE(Kept().find("<obj MSYM=\"\"><pro name=\"FNAME\" value=\"C\"/>"), std::string::npos) << Kept();
}

TEST_F(MergeTest, SignerAndStepsMustBeTheSame) {
    ASSERT_EQ(Read(Message(kLogin + L"step:N=1,M=2;N=3|DOC:A")), 1);
    for (const wchar_t* steps :
         {L"N=3;N=1,M=2", L"N=1,M=2", L"M=2,N=1;N=3", L"N=1;N=3", L"N=1,M=3;N=3", L"N=1,X=2;N=3"})
        ExpectRefused(Message(kLogin + L"step:" + steps + L"|DOC:B"));
    for (const wchar_t* user : {L"li", L""})
        ExpectRefused(Message(std::wstring(L"LoginInfo:UserName=") + user +
                              L",Password=p,PLMServer=s|step:N=1,M=2;N=3|DOC:B"));
    ExpectRefused(L"<root>");
    Results results;
    EXPECT_EQ(
        Merge(Message(L"LoginInfo:UserName=WANG,Password=new,PLMServer=t|step:n=1,m=2;N=3|DOC:B"), results),
        1);
    EXPECT_EQ(Described(results.login), L"WANG/new/t");
    EXPECT_EQ(Described(results.steps), L":n=1,m=2;N=3");
}

TEST_F(MergeTest, RecordsOfTheHost) {
    SLoginInfo wang{L"wang", L"", L""}, nobody;
    EXPECT_EQ(m_plm.ValidateLoginInfo(&wang, &wang), 1);
    EXPECT_EQ(m_plm.ValidateLoginInfo(&nobody, &nobody) + m_plm.ValidateLoginInfo(&wang, nullptr), 0);
    SSignType type;
    EXPECT_EQ(m_plm.ValidateSignStepType(&type, &type) + m_plm.ValidateSignStepType(nullptr, &type), 0);
    EXPECT_EQ(m_plm.RemoveExistSignFileTypeFromSource(nullptr, &type), 0);
    EXPECT_EQ(m_plm.AppendSignFileTypeToTarget(nullptr, &type), 0);
    type.m_lstObj.AddTail(static_cast<SSignObj*>(nullptr));
    EXPECT_EQ(m_plm.ValidateSignStepType(&type, &type), 0);
    EXPECT_EQ(m_plm.RemoveExistSignFileTypeFromSource(&type, &type), 1);
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
    const auto add = [&](const wchar_t* name, const wchar_t* value) {
        return m_plm.AddTargetAttribute(Text(name), Text(value), map, document);
    };
    EXPECT_EQ(add(L"a", L"1") + add(L"a", L"<2>") + add(L"b", L""), 3);
    EXPECT_EQ(add(L"", L"1") + add(nullptr, L"1") + add(L"a", nullptr), 0);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"1"), nullptr, document), 0);
    EXPECT_EQ(m_plm.AddTargetAttribute(Text(L"a"), Text(L"1"), map, nullptr), 0);
    _bstr_t xml;
    ASSERT_EQ(element->get_xml(xml.GetAddress()), S_OK);
    EXPECT_STREQ(xml, L"<obj a=\"&lt;2&gt;\" b=\"\"/>");
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
    } cases[] = {{{L"", L"b.DWG"}, L"010"}, {{}, L"000"}, {{L"1"}, L"001"}, {{L""}, L"000"}};
    ASSERT_EQ(Read(Documents(L"A.dwg;X=b.dwg,B.dwg;C.dwg,fname=1,FNAME=|OTHER:b.dwg")), 1);
    const std::string kept = Kept();
    WriteBytes(m_ret, "old");
    for (const auto& run : cases) {
        const std::filesystem::path other = m_folder / std::to_wstring(&run - cases);
        SetFileAttributesW(m_ret.c_str(), FILE_ATTRIBUTE_READONLY);
        ASSERT_TRUE(CreateHardLinkW(other.c_str(), m_ret.c_str(), nullptr));
        const std::string before = ReadBytes(other);
        ASSERT_EQ(Notify(run.names, L"fName", m_given), 1);
        EXPECT_EQ(ReadBytes(other), before) << "the old file is replaced, not written to";
        EXPECT_EQ(GetFileAttributesW(m_ret.c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
        const std::wstring text = FromUtf8(ReadBytes(m_ret)), mark = L"<pro name=\"SignRet\" value=\"";
        std::wstring marks;
        for (size_t at = text.find(mark); at != std::wstring::npos; at = text.find(mark, at + 1))
            marks += text[at + mark.size()];
        EXPECT_EQ(marks, run.marks);
        EXPECT_EQ(text.find(L"LoginInfo"), std::wstring::npos);
        EXPECT_EQ(text.find(L"step"), std::wstring::npos);
        EXPECT_NE(text.find(L"OTHER"), std::wstring::npos);
    }
    EXPECT_EQ(Kept(), kept);
    EXPECT_EQ(Notify({}, L"", m_given) + Notify({}, nullptr, m_given) + Notify({}, L"FNAME", L""), 0);
    EXPECT_EQ(Notify({}, L"FNAME", m_folder.Text() + L"\\missing\\x.y"), 0);
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
         {kSteps + L"DOC:A", kLogin + L"DOC:A", kLogin + kSteps, kLogin + kSteps + L"DOC:|MORE:A",
          kLogin + kSteps + L"DOC:A;-", kLogin + kSteps + L"DOC:<obj><pro name='N'/></obj>"}) {
        Read(Message(groups));
        EXPECT_EQ(Notify({}, L"FNAME", m_given), 0);
        EXPECT_FALSE(exists(m_ret));
    }
}

} // namespace
