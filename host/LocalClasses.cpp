#include "host/LocalClasses.h"

#include "host/Paths.h"

namespace host {

LocalClasses::LocalClasses() {
    const CString manifest = JoinPath(ModuleFolder(nullptr), L"varnoke-standins.manifest");
    ACTCTXW context = {};
    context.cbSize = sizeof(context);
    context.lpSource = manifest;
    m_context = ::CreateActCtxW(&context);
    if (m_context != INVALID_HANDLE_VALUE) ::ActivateActCtx(m_context, &m_cookie);
}

LocalClasses::~LocalClasses() {
    if (m_cookie) ::DeactivateActCtx(0, m_cookie);
    if (m_context != INVALID_HANDLE_VALUE) ::ReleaseActCtx(m_context);
}

} // namespace host
