#include <afxwin.h>
#include <psapi.h>

#include "base/Paths.h"
#include "base/VersionResource.h"
#include "host/Report.h"
#include "host/StandIns.h"

namespace host {

void TellStandIns() {
    HMODULE modules[500] = {};
    DWORD size = 0;
    if (!::K32EnumProcessModules(::GetCurrentProcess(), modules, sizeof modules, &size)) return;
    CString names;
    for (DWORD i = 0; i < _countof(modules) && i < size / sizeof(HMODULE); ++i) {
        const std::wstring path = base::ModulePath(modules[i]);
        if (!base::IsStandIn(path)) continue;
        names += (names.IsEmpty() ? L"" : L", ") + CString(path.substr(path.rfind(L'\\') + 1).c_str());
    }
    if (!names.IsEmpty()) Tell(TextId::StandIns, {names});
}

} // namespace host
