#include "config/UserLayer.h"

#include <shlobj.h>

#include "base/Paths.h"
#include "config/SettingStore.h"

namespace varnoke {

CString UserSettingsPath(const CString& adminPath) {
    if (::GetPrivateProfileIntW(L"Settings", L"UserLayer", 0, adminPath) != 1) return CString();
    wchar_t folder[MAX_PATH] = {}; // the size that the function is made for
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder)))
        return CString();
    return CString(base::JoinPath(base::JoinPath(folder, L"Varnoke"), L"Varnoke.ini").c_str());
}

CString ChoicePath(const CString& adminPath, const wchar_t* section, const wchar_t* key) {
    const CString user = UserSettingsPath(adminPath);
    if (user.IsEmpty()) return adminPath;
    wchar_t first[2] = {};
    return ::GetPrivateProfileStringW(section, key, L"", first, 2, user) > 0 ? user : adminPath;
}

bool StoreChoice(const CString& adminPath, const wchar_t* section, const wchar_t* key, const CString& value) {
    const CString user = UserSettingsPath(adminPath);
    if (user.IsEmpty()) return StoreSetting(adminPath, section, key, value);
    ::CreateDirectoryW(base::FolderPrefix(user).c_str(), nullptr);
    return StoreSetting(user, section, key, value);
}

} // namespace varnoke
