// What the connected signing server can do.
#include "varnoke/SignOpt.h"

#include "module/Guarded.h"
#include "neighbours/signserver.h"

namespace {

constexpr int kNameSize = 1024;

} // namespace

long CSignOpt::CheckMethods(wchar_t* missing) {
    if (missing) *missing = L'\0';
    return varnoke::Guarded(0L, [&] {
        for (const wchar_t* method : signserver::kMethods) {
            const CString configured = m_config.GetDynDisp(method);
            if (SelectMethod(configured) > 0) continue;
            if (missing && IsConnected()) ::lstrcpynW(missing, configured, kNameSize);
            return 0L;
        }
        return 1L;
    });
}
