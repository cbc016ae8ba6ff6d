#include <afxwin.h>
#include <psapi.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/Paths.h"
#include "base/VersionResource.h"
#include "host/Report.h"
#include "host/StandIns.h"

namespace host {

void TellStandIns() {
    HMODULE modules[500] = {};
    DWORD size = 0;
    if (!::K32EnumProcessModules(::GetCurrentProcess(), modules, sizeof modules, &size)) return;
    std::vector<std::wstring> names;
    for (DWORD i = 0; i < _countof(modules) && i < size / sizeof(HMODULE); ++i) {
        const std::wstring path = base::ModulePath(modules[i]);
        if (base::IsStandIn(path)) names.push_back(path.substr(path.rfind(L'\\') + 1));
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end()); // one may be loaded from two folders
    CString list;
    for (const std::wstring& name : names) {
        list += (list.IsEmpty() ? L"" : L", ") + CString(name.c_str());
    }
    if (!list.IsEmpty()) Tell(TextId::StandIns, {list});
}

} // namespace host
