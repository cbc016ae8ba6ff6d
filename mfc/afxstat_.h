// State of a module (application object, instance, resources) and which one a thread works with.
#pragma once
#include <afxver_.h>

class CWinApp;

/// One per module. Handles are borrowed.
class AFX_MODULE_STATE {
public:
    CWinApp* m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
};

/// The state of the module that this code is linked into.
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
/// The calling thread's current state: the one set last, else the static one.
AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/// Sets the calling thread's state (null: back to the static one) and returns what was set before.
AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) noexcept;

HINSTANCE AFXAPI AfxGetInstanceHandle();
HINSTANCE AFXAPI AfxGetResourceHandle();

/// Makes a state the current one until the end of the scope.
class AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) noexcept
        : m_pPrevModuleState(AfxSetModuleState(pModuleState)) {}
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_pPrevModuleState); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    void operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);
