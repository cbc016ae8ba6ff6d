// Sign tags of single documents and of lists.
#include "tests/plm/PlmFixture.h"
#include <time.h>

using namespace tests;

namespace {

const wchar_t* const kTagFiles[] = {L"DocSignTag.ini", L"DocSignLogTag.ini", L"DocSignTimeTag.ini"};

// The bytes of a UTF-16 file.
std::string Utf16(const std::wstring& text) {
    return "\xFF\xFE" +
           std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

class TagsTest : public PlmTest {
protected:
    std::filesystem::path TagFile(int kind) const { return m_folder / L"SignData" / kTagFiles[kind]; }

    // Sets the document's modification time, local.
    void SetTime(const wchar_t* name, const SYSTEMTIME& local) const {
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
        EXPECT_EQ(GetFileAttributesW(TagFile(kind).c_str()) & FILE_ATTRIBUTE_READONLY, 0u);
        EXPECT_EQ(ReadBytes(TagFile(kind)), Utf16(kind ? L"[DocSignLogTag]\r\n图纸 1.dwg=-5\r\nB.dwg=12\r\n"
                                                       : L"[DocSignTag]\r\n图纸 1.dwg=-5\r\nB.dwg=12\r\n"));
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
    _putenv("TZ=ABC-5"); // the C run-time library's time zone is not the system's
    _tzset();
    SetTime(L"a.dwg", {2015, 7, 0, 14, 9, 5, 0, 0});
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, time), 1);
    EXPECT_STREQ(time, L"2015-07-14_09:05:00");
    _putenv("TZ=");
    _tzset();
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, nullptr), 0);
    EXPECT_EQ(m_plm.SetDocSignTimeTag(folder, name), 1);
    EXPECT_EQ(ReadBytes(TagFile(2)), Utf16(L"[DocSignTimeTag]\r\na.dwg=2015-07-14_09:05:00\r\n"));
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 0);
    EXPECT_EQ(changed, 0);
    SetTime(L"a.dwg", {2015, 7, 0, 14, 9, 5, 1, 0});
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 1);
    EXPECT_EQ(changed, 1);
    std::filesystem::remove(m_folder / L"a.dwg");
    EXPECT_EQ(m_plm.GetDocSignTimeTag(folder, name, &changed), 0) << "a missing document has not changed";
    EXPECT_EQ(changed, 0);
    WriteBytes(m_folder / L"a.dwg", "");
    SetTime(L"a.dwg", {1960, 7, 0, 14, 9, 5, 1, 0});
    EXPECT_EQ(m_plm.GetDocLastModifyTimeString(folder, name, time), 1);
    EXPECT_TRUE(std::wstring(time).find(L"19") == 0 && std::wstring(time) > L"1969-12-31") << "before 1970";
}

// Single and list operations must leave the files as the profile functions leave them, which read them, too.
TEST_F(TagsTest, Files_AreThoseOfTheProfileFunctions) {
    std::string many = "[DocSignTag]\r\n";
    for (int i = 0; i < 500; ++i)
        many += "old document " + std::to_string(i) + ".dwg=1\r\n";
    const std::string befores[] = {
        "",
        "[DocSignTag]\r\nA.DWG=5\r\nother.dwg=-3\r\na.dwg=6\r\n",
        "[Else]\r\nk=1\r\n[docsigntag]\r\n; comment\r\nB.dwg = \"4\"\r\n\r\nplain\r\n[More]\r\nb.dwg=2\r\n",
        "\r\n[DocSignTag]\r\nno line end=1",
        "[Else]\r\nk=12\r\n", // as long as a file of the section alone
        "[docsigntag]\r\nkey=\"1\"\r\n",
        many,
        Utf16(L"[DocSignTag]\r\n图.dwg=1\r\n"),
    };
    const std::vector<const wchar_t*> nameLists[] = {
        {L"a.dwg", L"", L"b.dwg", L"图 1.dwg", L"A.dwg", L"a.dwg"},
        {L"x=y.dwg", L"a.dwg", L"x=y.dwg"},
        {L" e"},
        {L";c.dwg"},
        {L"[d].dwg"},
        {L"b.dwg"},
        {L"한.dwg", L"a.dwg"},
        {L"한 Ä.dwg", L"a.dwg"}};
    for (const std::string& before : befores) {
        for (const auto& names : nameLists) {
            SCOPED_TRACE(before.substr(0, 60) + ToUtf8(names[0]));
            const bool isUtf16 = before.empty() || before[0] == '\xFF' || *names[0] == L'한';
            const TempFolder expected, single, whole;
            const std::filesystem::path file = std::filesystem::path(L"SignData") / kTagFiles[0];
            WriteBytes(expected / file, isUtf16 && before[0] != '\xFF' ? Utf16(FromUtf8(before)) : before);
            for (const TempFolder* folder : {&single, &whole})
                if (!before.empty()) WriteBytes(*folder / file, before);
            const auto list = NewList(whole.Text(), {});
            for (const wchar_t* name : names) {
                list->m_lstItem.AddTail(new SSignFileDULItem{L"", name});
                if (!*name) continue;
                WritePrivateProfileStringW(L"DocSignTag", name, L"0", (expected / file).c_str());
                EXPECT_EQ(m_plm.SetDocSignTag(Text(single.Text()), Text(name), 0), 1);
            }
            EXPECT_EQ(m_plm.UpdateDocsSignTag(list.get(), 0), 1);
            EXPECT_EQ(ReadBytes(single / file), ReadBytes(expected / file));
            EXPECT_EQ(ReadBytes(whole / file), ReadBytes(expected / file));
            for (const wchar_t* name : names) {
                long value = 7;
                if (!*name || m_plm.SetDocSignTag(Text(single.Text()), Text(name), 42) != 1) continue;
                EXPECT_EQ(m_plm.GetDocSignTag(Text(single.Text()), Text(name), &value), 1);
                EXPECT_EQ(value, GetPrivateProfileIntW(L"DocSignTag", name, 0, (single / file).c_str()));
            }
        }
    }
}

TEST_F(TagsTest, FilesChangedByOthers_AreReadAgain) {
    Text folder(m_folder.Text()), name(L"a.dwg");
    const auto tag = [&] {
        long value = -1;
        EXPECT_EQ(m_plm.GetDocSignTag(folder, name, &value), 1);
        return value;
    };
    EXPECT_EQ(m_plm.SetDocSignTag(folder, name, 5), 1);
    for (const auto& [bytes, value] : {std::pair("[DocSignTag]\r\na.dwg=16\r\n", 16),
                                       {"", 0},
                                       {"[DocSignTag]\r\nb=1\r\nA.dwg=3\r\n", 3}}) {
        WriteBytes(TagFile(0), bytes);
        EXPECT_EQ(tag(), value);
    }
    EXPECT_EQ(m_plm.SetDocSignTag(folder, name, 4), 1);
    EXPECT_EQ(ReadBytes(TagFile(0)), "[DocSignTag]\r\nb=1\r\nA.dwg=4\r\n");
    std::filesystem::remove(TagFile(0));
    EXPECT_EQ(tag(), 0);
}

TEST_F(TagsTest, LogTagsOnlyWhenWanted) {
    EXPECT_EQ(m_plm.UpdateDocsSignTag(NewList(m_folder.Text(), {{L"r", L""}}).get(), 1), 1);
    EXPECT_FALSE(exists(m_folder / L"SignData")); // the only document has no name
    EXPECT_EQ(m_plm.UpdateDocsSignTag(NewList(m_folder.Text(), {{L"", L"a.dwg"}}).get(), 0), 1);
    EXPECT_EQ(ReadBytes(TagFile(0)), Utf16(L"[DocSignTag]\r\na.dwg=0\r\n"));
    EXPECT_FALSE(exists(TagFile(1)));
}

} // namespace
