// Folders and files that the whole library refers to.
#include "module/ModulePaths.h"

#include "base/Paths.h"
#include "module/VarnokeApp.h"

namespace varnoke {

namespace {

CString SettingsFolder() {
    const CString folder = ModuleFolder();
    if (!folder.IsEmpty()) return folder;
    const std::wstring windows = base::WindowsFolder();
    return windows.empty() ? CString(L"C:") : CString(windows.c_str());
}

} // namespace

CString ModuleFolder() {
    return theApp.GetModuleFolder();
}

CString SettingsFilePath() {
    return JoinPath(SettingsFolder(), L"Varnoke.ini");
}

CString ModelConfigPath() {
    // No check of the handle: without the module the host program's own folder is the one to look in.
    const std::wstring folder = base::FolderPrefix(base::ModulePath(::GetModuleHandleW(L"QORLocal.dll")));
    return CString((folder + L"ModelConfig.Xml").c_str());
}

CString TemporaryFolder() {
    return CString(base::TemporaryFolderPrefix().c_str());
}

CString JoinPath(const CString& folder, const CString& name) {
    return CString(base::JoinPath(folder, name).c_str());
}

} // namespace varnoke
