// Sign tags of single documents and of lists.
#include "tests/plm/PlmFixture.h"

using namespace tests;

namespace {

const wchar_t* const kTagFiles[] = {L"DocSignTag.ini", L"DocSignLogTag.ini", L"DocSignTimeTag.ini"};

class TagsTest : public PlmTest {
protected:
    std::filesystem::path TagFile(int kind) const { return m_folder / L"SignData" / kTagFiles[kind]; }

    // Sets the document's modification time to 9:05 and some seconds, local, on 2015-07-14.
    void SetTime(const wchar_t* name, WORD second) const {
        const SYSTEMTIME local = {2015, 7, 0, 14, 9, 5, second, 0};
        SYSTEMTIME utc;
        FILETIME time;
        TzSpecificLocalTimeToSystemTime(nullptr, &local, &utc);
        SystemTimeToFileTime(&utc, &time);
        const HANDLE file =
            CreateFileW((m_folder / name).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &time));
        CloseHandle(file);
    }
};

TEST_F(TagsTest, SetAndGet) {
    const struct {
        long (CPLMInteract::*set)(wchar_t*, wchar_t*, long);
        long (CPLMInteract::*get)(wchar_t*, wchar_t*, long*);
    } kinds[] = {{&CPLMInteract::SetDocSignTag, &CPLMInteract::GetDocSignTag},
                 {&CPLMInteract::SetDocSignLogTag, &CPLMInteract::GetDocSignLogTag}};
    Text folder(m_folder.Text()), withSlash(m_folder.Text() + L"\\"), name(L"图纸 1.dwg");
    for (int kind = 0; kind < 2; ++kind) {
        const auto [set, get] = kinds[kind];
        long value = 7;
        EXPECT_EQ((m_plm.*get)(folder, name, &value), 1);
        EXPECT_EQ(value, 0);
        EXPECT_EQ(exists(m_folder / L"SignData"), kind == 1); // reading makes no folder
        EXPECT_EQ((m_plm.*set)(folder, name, -5), 1);
        SetFileAttributesW(TagFile(kind).c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
        EXPECT_EQ((m_plm.*set)(withSlash, Text(L"B.dwg"), 12), 1);
        EXPECT_EQ((m_plm.*get)(withSlash, name, &value), 1);
        EXPECT_EQ(value, -5);
        EXPECT_EQ(ReadBytes(TagFile(kind)).find(kind ? "[DocSignLogTag]\r\n" : "[DocSignTag]\r\n"), 0u);
        for (const wchar_t* missing : {L"", static_cast<const wchar_t*>(nullptr)}) {
            EXPECT_EQ((m_plm.*set)(Text(missing), name, 1) + (m_plm.*set)(folder, Text(missing), 1), 0);
            EXPECT_EQ((m_plm.*get)(Text(missing), name, &value) + (m_plm.*get)(folder, Text(missing), &value),
                      0);
        }
        EXPECT_EQ((m_plm.*get)(folder, name, nullptr), 0);
        WriteBytes(m_folder / L"file", "");
        EXPECT_EQ((m_plm.*set)(Text((m_folder / L"file").wstring()), name, 1), 0);
    }
    EXPECT_TRUE(GetFileAttributesW((m_folder / L"SignData").c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(TagsTest, TimeTag) {
    Text folder(m_folder.Text()), name(L"a.dwg");
    long changed = 7;
    wchar_t time[1024] = L"?";
    EXPECT_EQ(m_plm.SetDocSignTimeTag(folder, name), 0);
    EXPECT_FALSE(exists(TagFile(2)));
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 0);
    EXPECT_EQ(changed, 0);
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, time), 0);
    WriteBytes(m_folder / L"a.dwg", "");
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 1); // nothing recorded yet
    EXPECT_EQ(changed, 1);
    SetTime(L"a.dwg", 0);
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, time), 1);
    EXPECT_STREQ(time, L"2015-07-14_09:05:00");
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, nullptr), 0);
    EXPECT_EQ(m_plm.SetDocSignTimeTag(folder, name), 1);
    EXPECT_EQ(ReadBytes(TagFile(2)), "[DocSignTimeTag]\r\na.dwg=2015-07-14_09:05:00\r\n");
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 0);
    EXPECT_EQ(changed, 0);
    SetTime(L"a.dwg", 1);
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 1);
    EXPECT_EQ(changed, 1);
}

// The list operations must leave the files as key-by-key writes leave them.
TEST_F(TagsTest, ListsGiveTheFilesOfSingleOperations) {
    std::string many = "[DocSignTag]\r\n";
    for (int i = 0; i < 4000; ++i)
        many += "old document " + std::to_string(i) + ".dwg=1\r\n";
    const std::string befores[] = {
        "",
        "[DocSignTag]\r\nA.DWG=5\r\nother.dwg=-3\r\na.dwg=6\r\n",
        "[Else]\r\nk=1\r\n[docsigntag]\r\n; comment\r\nB.dwg = \"4\"\r\n\r\nplain\r\n[More]\r\nb.dwg=2\r\n",
        "\r\n[DocSignTag]\r\nno line end=1",
        "[Else]\r\nk=12\r\n", // as long as a file of the section alone
        many,
    };
    const ItemNames nameLists[] = {
        {{L"", L"a.dwg"}, {L"", L""}, {L"", L"b.dwg"}, {L"", L"图 1.dwg"}, {L"", L"A.dwg"}},
        {{L"", L"x=y.dwg"},
         {L"", L"a.dwg"},
         {L"", L";c.dwg"},
         {L"", L"[d].dwg"},
         {L"", L"x=y.dwg"},
         {L"", L" e"}}};
    for (const std::string& before : befores) {
        for (const ItemNames& names : nameLists) {
            SCOPED_TRACE(before.substr(0, 60));
            const TempFolder single, whole;
            for (const TempFolder* folder : {&single, &whole}) {
                WriteBytes(*folder / L"a.dwg", "");
                for (const wchar_t* file : kTagFiles) {
                    if (!before.empty()) WriteBytes(*folder / L"SignData" / file, before);
                    SetFileAttributesW((*folder / L"SignData" / file).c_str(), FILE_ATTRIBUTE_READONLY);
                }
            }
            last_write_time(whole / L"a.dwg", last_write_time(single / L"a.dwg"));
            for (const auto& item : names) {
                m_plm.SetDocSignTag(Text(single.Text()), Text(item.second), 0);
                m_plm.SetDocSignLogTag(Text(single.Text()), Text(item.second), 0);
                m_plm.SetDocSignTimeTag(Text(single.Text()), Text(item.second));
            }
            const auto list = NewList(whole.Text(), names);
            EXPECT_EQ(m_plm.UpdateDocsSignTag(list.get(), 1), 1);
            EXPECT_EQ(m_plm.UpdateDocsSignTimeTag(list.get()), 1);
            for (const wchar_t* file : kTagFiles)
                EXPECT_TRUE(ReadBytes(whole / L"SignData" / file) == ReadBytes(single / L"SignData" / file))
                    << file;
        }
    }
}

TEST_F(TagsTest, LogTagsOnlyWhenWanted) {
    EXPECT_EQ(m_plm.UpdateDocsSignTag(NewList(m_folder.Text(), {{L"r", L""}}).get(), 1), 1);
    EXPECT_FALSE(exists(m_folder / L"SignData")); // the only document has no name
    EXPECT_EQ(m_plm.UpdateDocsSignTag(NewList(m_folder.Text(), {{L"", L"a.dwg"}}).get(), 0), 1);
    EXPECT_EQ(ReadBytes(TagFile(0)), "[DocSignTag]\r\na.dwg=0\r\n");
    EXPECT_FALSE(exists(TagFile(1)));
}

} // namespace
