// Folders and files that the whole library refers to.
#include "module/ModulePaths.h"

#include <vector>

#include "base/InputFile.h"
#include "module/Text.h"
#include "module/VarnokeApp.h"

namespace varnoke {

namespace {

CString SettingsFolder() {
    const CString folder = ModuleFolder();
    if (!folder.IsEmpty()) {
        return folder;
    }
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
    constexpr DWORD kSize = 2047;
    wchar_t folder[kSize] = {};
    const DWORD length = ::GetTempPathW(kSize, folder);
    return length < kSize ? CString(folder, static_cast<int>(length)) : CString();
}

bool FileExists(const wchar_t* path) {
    return HasText(path) && InputFile(path).IsOpen();
}

CString JoinPath(const CString& folder, const CString& name) {
    return folder.Right(1) == L"\\" ? folder + name : folder + L"\\" + name;
}

CString FullPath(const CString& path) {
    const DWORD size = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    std::vector<wchar_t> full(size + 1);
    const DWORD length = ::GetFullPathNameW(path, size, full.data(), nullptr);
    return length < size ? CString(full.data(), static_cast<int>(length)) : CString();
}

CString ModuleFilePath(HMODULE module) {
    constexpr DWORD kLongestPath = 0x8000;
    for (DWORD size = MAX_PATH; size < 2 * kLongestPath; size *= 2) {
        std::vector<wchar_t> path(size);
        const DWORD length = ::GetModuleFileNameW(module, path.data(), size);
        if (length < size) {
            return CString(path.data(), static_cast<int>(length));
        }
    }
    return CString();
}

CString FolderOfPath(const CString& path) {
    return path.Left(path.ReverseFind(L'\\') + 1);
}

} // namespace varnoke
