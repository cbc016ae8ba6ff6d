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

AFX_MODULE_STATE::AFX_MODULE_STATE(BOOL bDLL, WNDPROC pfnAfxWndProc, DWORD dwVersion, BOOL bSystem)
    : m_pCurrentWinApp(nullptr), m_hCurrentInstanceHandle(nullptr), m_hCurrentResourceHandle(nullptr),
      m_lpszCurrentAppName(nullptr), m_bDLL(static_cast<BYTE>(bDLL)), m_bSystem(static_cast<BYTE>(bSystem)),
      m_pfnAfxWndProc(pfnAfxWndProc), m_dwVersion(dwVersion) {}

AFX_MODULE_STATE::~AFX_MODULE_STATE() = default;

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    struct CThisModuleState : AFX_MODULE_STATE {
        CThisModuleState() : AFX_MODULE_STATE(TRUE, nullptr, _MFC_VER) {
            m_hCurrentInstanceHandle = m_hCurrentResourceHandle = ThisModule();
        }
    };
    static CThisModuleState state;
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

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) noexcept
    : m_pPrevModuleState(AfxSetModuleState(pModuleState)), m_pThreadState(nullptr) {}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    AfxSetModuleState(m_pPrevModuleState);
}
