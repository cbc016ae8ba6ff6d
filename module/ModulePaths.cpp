// Folders and files that the whole library refers to.
#include "module/ModulePaths.h"

#include "base/Paths.h"
#include "base/WholeFile.h"
#include "module/Text.h"
#include "module/VarnokeApp.h"

namespace varnoke {

namespace {

CString SettingsFolder() {
    const CString folder = ModuleFolder();
    if (!folder.IsEmpty()) return folder;
    constexpr UINT kSize = 1023;
    wchar_t windowsFolder[kSize] = {};
    const UINT length = ::GetWindowsDirectoryW(windowsFolder, kSize);
    return length > 0 && length < kSize ? CString(windowsFolder) : CString(L"C:");
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
    return FolderOfPath(ModuleFilePath(::GetModuleHandleW(L"QORLocal.dll"))) + L"ModelConfig.Xml";
}

CString TemporaryFolder() {
    return CString(base::TemporaryFolderPrefix().c_str());
}

bool FileExists(const wchar_t* path) {
    return HasText(path) && base::OpenForReading(path);
}

CString JoinPath(const CString& folder, const CString& name) {
    return CString(base::JoinPath(folder, name).c_str());
}

CString FullPath(const CString& path) {
    return CString(base::FullPath(path).c_str());
}

CString ModuleFilePath(HMODULE module) {
    return CString(base::ModulePath(module).c_str());
}

CString FolderOfPath(const CString& path) {
    return CString(base::FolderPrefix(path).c_str());
}

} // namespace varnoke
