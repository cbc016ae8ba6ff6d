// Tests of paths and identifiers.
#include <afxwin.h>
#include <gtest/gtest.h>
#include "module/ModulePaths.h"
#include "module/NewGuid.h"
#include "tests/support/TempFolder.h"

namespace {

std::wstring ProgramFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().wstring() + L"\\";
}

TEST(ModulePaths, Folders_EndInABackslash) {
    EXPECT_STREQ(varnoke::ModuleFolder(), ProgramFolder().c_str());
    EXPECT_STREQ(varnoke::SettingsFilePath(), (ProgramFolder() + L"Varnoke.ini").c_str());
    EXPECT_EQ(varnoke::TemporaryFolder().Right(1), L"\\");
    EXPECT_TRUE(std::filesystem::is_directory(varnoke::TemporaryFolder().GetString()));
    EXPECT_EQ(varnoke::FolderOfPath(L"b.dll"), L"");
    EXPECT_EQ(varnoke::JoinPath(L"C:", L"a"), L"C:\\a");
    EXPECT_EQ(varnoke::JoinPath(L"C:\\图纸\\", L"a"), L"C:\\图纸\\a");
}

TEST(ModulePaths, ModelConfigPath_LiesBesideTheLoadedModuleOrTheProgram) {
    ASSERT_EQ(GetModuleHandleW(L"QORLocal.dll"), nullptr);
    EXPECT_STREQ(varnoke::ModelConfigPath(), (ProgramFolder() + L"ModelConfig.Xml").c_str());

    tests::TempFolder folder;
    std::filesystem::copy_file(ProgramFolder() + L"Durvell.dll", folder / "QORLocal.dll");
    const HMODULE module = LoadLibraryW((folder / "QORLocal.dll").c_str());
    ASSERT_NE(module, nullptr) << GetLastError();
    EXPECT_STREQ(varnoke::ModelConfigPath(), (folder / "ModelConfig.Xml").c_str());
    FreeLibrary(module);
}

TEST(ModulePaths, FileExists_OnlyForReadableFiles) {
    tests::TempFolder folder;
    const auto file = folder / L"图.dwg";
    for (const wchar_t* none :
         {static_cast<const wchar_t*>(nullptr), L"", folder.Path().c_str(), file.c_str()})
        EXPECT_FALSE(varnoke::FileExists(none));
    tests::WriteBytes(file, "x");
    EXPECT_TRUE(varnoke::FileExists(file.c_str()));
    EXPECT_TRUE(DeleteFileW(file.c_str())) << "the file must not stay open";
}

TEST(NewGuid, IsUpperCaseWithoutBracesAndFresh) {
    const CString guid = varnoke::NewGuid();
    GUID parsed;
    ASSERT_EQ(CLSIDFromString((L"{" + guid + L"}").GetString(), &parsed), S_OK);
    EXPECT_EQ(guid.GetLength(), 36);
    EXPECT_EQ(guid, CString(guid).MakeUpper());
    EXPECT_NE(guid, varnoke::NewGuid());
}

} // namespace
