// Tests of the module helpers.
#include <afxwin.h>
#include <gtest/gtest.h>
#include "base/Paths.h"
#include "module/ModulePaths.h"
#include "module/VarnokeApp.h"
#include "tests/support/TempFolder.h"

namespace {

TEST(ModulePaths, Files_LieBesideTheirModuleOrElsewhere) {
    wchar_t windows[MAX_PATH];
    GetWindowsDirectoryW(windows, MAX_PATH);
    const HINSTANCE instance =
        std::exchange(theApp.m_hInstance, reinterpret_cast<HINSTANCE>(0x10)); // no module
    EXPECT_EQ(varnoke::SettingsFilePath(), CString(windows) + L"\\Varnoke.ini");
    theApp.m_hInstance = instance;
    const CString program(base::FolderPrefix(base::ModulePath(nullptr)).c_str());
    EXPECT_EQ(varnoke::SettingsFilePath(), program + L"Varnoke.ini");
    EXPECT_EQ(varnoke::ModelConfigPath(), program + L"ModelConfig.Xml");
    tests::TempFolder folder;
    std::filesystem::copy_file((program + L"Durvell.dll").GetString(), folder / "QORLocal.dll");
    const HMODULE module = LoadLibraryW((folder / "QORLocal.dll").c_str());
    EXPECT_STREQ(varnoke::ModelConfigPath(), (folder / "ModelConfig.Xml").c_str());
    FreeLibrary(module);
    EXPECT_EQ(varnoke::TemporaryFolder().Right(1), L"\\");
}

} // namespace
