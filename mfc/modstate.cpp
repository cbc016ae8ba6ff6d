// Module state per module, current state per thread.
#include <afxstat_.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

// The linker places this symbol at the module's base address, which is its instance handle.
HINSTANCE ThisModule() noexcept {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

thread_local AFX_MODULE_STATE* t_pModuleState = nullptr;

} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    static AFX_MODULE_STATE state = {nullptr, ThisModule(), ThisModule()};
    return &state;
}

AFX_MODULE_STATE* AFXAPI AfxGetModuleState() {
    return t_pModuleState != nullptr ? t_pModuleState : AfxGetStaticModuleState();
}

AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) noexcept {
    AFX_MODULE_STATE* pPrevious = t_pModuleState;
    t_pModuleState = pNewState;
    return pPrevious;
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}
