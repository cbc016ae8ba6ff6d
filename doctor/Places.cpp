#include "doctor/Places.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "base/VersionResource.h"

namespace doctor {

std::wstring Locate(const std::wstring& name, const Options& options) {
    for (const std::wstring& folder : {options.library, options.host, base::SystemFolder()}) {
        const std::wstring path = base::JoinPath(folder, name);
        if (base::FileExists(path)) return path;
    }
    return base::FindOnPath(name);
}

bool IsSystemFile(const std::wstring& path) {
    const std::wstring folder = base::WindowsFolder();
    return !folder.empty() && base::SameText(path.substr(0, folder.size()), folder);
}

std::wstring Described(const std::wstring& path) {
    const std::wstring version = base::VersionText(path, L"FileVersion");
    return version.empty() ? path : path + L" " + version;
}

std::wstring Wide(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

} // namespace doctor
