// Files as a whole, and the paths to them.
#include <windows.h>
#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/WholeFile.h"
#include "base/Xml.h"
#include "tests/support/TempFolder.h"

namespace fs = std::filesystem;
using tests::ReadBytes;

namespace {

class WholeFile : public testing::Test {
protected:
    WholeFile() { tests::WriteBytes(m_file, "old"); }
    size_t CountFiles() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(m_folder.Path()), {}));
    }
    bool IsReadOnly() const { return GetFileAttributesW(m_file.c_str()) & FILE_ATTRIBUTE_READONLY; }

    tests::TempFolder m_folder;
    const fs::path m_file = m_folder / L"100%41 图.xml";
};

TEST_F(WholeFile, Write_PutsAnotherFileInItsPlace) {
    const fs::path link = m_folder / "link";
    ASSERT_TRUE(CreateHardLinkW(link.c_str(), m_file.c_str(), nullptr));
    SetFileAttributesW(m_file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(base::WriteWholeFile(m_file.c_str(), "new"));
    EXPECT_EQ(ReadBytes(m_file), "new");
    EXPECT_EQ(ReadBytes(link), "old");
    EXPECT_TRUE(base::WriteWholeFile(m_file.c_str(), ""));
    EXPECT_EQ(ReadBytes(m_file), "");
    EXPECT_EQ(CountFiles(), 2u);
}

TEST_F(WholeFile, Write_FailureLeavesTheOldFileAndNothingElse) {
    SetFileAttributesW(m_file.c_str(), FILE_ATTRIBUTE_READONLY);
    const base::FileHandle held = base::OwnFile(
        CreateFileW(m_file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_FALSE(base::WriteWholeFile(m_file.c_str(), "new"));
    EXPECT_TRUE(IsReadOnly());
    EXPECT_FALSE(base::WriteWholeFile(m_folder.Text(), "a folder"));
    EXPECT_FALSE(base::WriteWholeFile((m_folder / "missing" / "a").c_str(), "no folder"));
    base::ReplacedFile unwritten(m_file.c_str());
    EXPECT_NE(unwritten.TemporaryPath().find(L"~varnoke-"), std::wstring::npos);
    EXPECT_FALSE(unwritten.Replace()) << "who was to write it has not";
    EXPECT_EQ(ReadBytes(m_file), "old");
    base::RemoveLeftFiles(base::FolderPrefix(m_file.c_str()));
    EXPECT_EQ(CountFiles(), 2u) << "with the temporary file that is still wanted";
}

TEST_F(WholeFile, Replace_TakesWhatOthersWroteButNotWhatWasCutOff) {
    base::ReplacedFile file(m_file.c_str());
    EXPECT_TRUE(file.Write("the whole"));
    tests::WriteBytes(file.TemporaryPath(), "the");
    EXPECT_FALSE(file.Replace());
    EXPECT_EQ(ReadBytes(m_file), "old");
    base::ReplacedFile other(m_file.c_str());
    tests::WriteBytes(other.TemporaryPath(), "by others");
    EXPECT_TRUE(other.Replace());
    EXPECT_EQ(ReadBytes(m_file), "by others");
}

TEST_F(WholeFile, Read_TellsWhyNot) {
    std::string bytes = "before";
    EXPECT_EQ(base::ReadWholeFile(m_folder.Text(), bytes), base::ReadResult::Unreadable);
    EXPECT_EQ(bytes, "");
    EXPECT_EQ(base::ReadWholeFile((m_folder / "missing").c_str(), bytes), base::ReadResult::Missing);
    EXPECT_EQ(base::ReadWholeFile(m_file.c_str(), bytes, 2), base::ReadResult::TooLarge);
    EXPECT_EQ(base::ReadWholeFile(m_file.c_str(), bytes, 3), base::ReadResult::Done);
    EXPECT_EQ(bytes, "old");
}

TEST_F(WholeFile, Paths_AreOfAnyLength) {
    std::wstring folder = m_folder.Text();
    while (folder.size() < 400) {
        folder = base::JoinPath(folder, std::wstring(40, L'签'));
        ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    }
    const std::wstring file = base::JoinPath(folder, L"a.xml");
    EXPECT_TRUE(base::WriteWholeFile(file, "deep") && base::FileExists(file));
    EXPECT_EQ(base::FullPath(base::FolderPrefix(file) + L".\\a.xml"), file);
    // The fixture's own means don't reach that deep.
    DeleteFileW(file.c_str());
    for (; folder != m_folder.Text(); folder = base::WithoutBackslash(base::FolderPrefix(folder)))
        EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
}

TEST_F(WholeFile, Xml_IsRefusedWithDocumentTypeAndKeptWhenItCannotBeSaved) {
    EXPECT_FALSE(base::LoadXmlText(L"<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>"));
    tests::WriteBytes(m_file, "<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>");
    EXPECT_FALSE(base::LoadXmlFile(m_file.c_str()));
    const base::XmlDocumentPtr document = base::LoadXmlText(L"<a name='图'/>");
    EXPECT_FALSE(base::SaveXml(document, m_folder.Text()));
    EXPECT_TRUE(base::SaveXml(document, m_file.c_str()));
    EXPECT_NE(ReadBytes(m_file).find("<a name=\"图\"/>"), std::string::npos);
    EXPECT_TRUE(base::LoadXmlFile(m_file.c_str()));
}

TEST(Paths, Texts_FollowTheirContracts) {
    const auto folders = [](const wchar_t* path) {
        return base::FolderPrefix(path) + L"|" + base::WithoutBackslash(path) + L"|" +
               base::JoinPath(path, L"n");
    };
    EXPECT_EQ(folders(L"C:\\a\\\\"), L"C:\\a\\\\|C:\\a|C:\\a\\\\n");
    EXPECT_EQ(folders(L"C:\\"), L"C:\\|C:\\|C:\\n");
    EXPECT_EQ(folders(L"a/b"), L"a/|a/b|a/b\\n");
    EXPECT_EQ(folders(L"C:b"), L"C:|C:b|C:b\\n");
    EXPECT_EQ(folders(L""), L"||n");
    for (const wchar_t* device : {L"NUL", L"con.dwg", L"COM1.txt", L"lpt²", L"aux .dwg", L"CONIN$"})
        EXPECT_TRUE(base::IsDeviceName(device)) << tests::ToUtf8(device);
    for (const wchar_t* name : {L"", L"COM10.console", L"COM", L"nul1", L"a.nul"})
        EXPECT_FALSE(base::IsDeviceName(name)) << tests::ToUtf8(name);
}

} // namespace
