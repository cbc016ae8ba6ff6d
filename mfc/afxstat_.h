// State of a module (application object, instance, resources) and which one a thread works with.
#pragma once
#include <afxver_.h>

class CWinApp;
class _AFX_THREAD_STATE;

/// Base of what the framework keeps for itself.
class CNoTrackObject {
public:
    virtual ~CNoTrackObject() = default;
};

/// One per module. Handles are borrowed.
class AFX_MODULE_STATE : public CNoTrackObject {
public:
    /// Messages of the module's windows go to the given procedure.
    AFX_MODULE_STATE(BOOL bDLL, WNDPROC pfnAfxWndProc, DWORD dwVersion, BOOL bSystem = FALSE);
    ~AFX_MODULE_STATE() override;

    CWinApp* m_pCurrentWinApp;
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    LPCTSTR m_lpszCurrentAppName;
    BYTE m_bDLL;
    BYTE m_bSystem;
    BYTE m_bReserved[2];
    DWORD m_fRegisteredClasses;
    BYTE m_reserved1[0x40];
    WNDPROC m_pfnAfxWndProc;
    DWORD m_dwVersion;
    // MFC's own part; how much of it there is may differ between releases.
    BYTE m_reserved2[0x184];
};

/// The state of the module that this code is linked into.
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
/// The calling thread's current state: the one set last, else that of the program.
AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/// Sets the calling thread's state (null: back to the program's) and returns what was set before.
AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState) noexcept;

inline HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}
inline HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

/// Makes a state the current one until the end of the scope.
class AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) noexcept;
    ~AFX_MAINTAIN_STATE2();
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    void operator=(const AFX_MAINTAIN_STATE2&) = delete;

protected:
    AFX_MODULE_STATE* m_pPrevModuleState;
    _AFX_THREAD_STATE* m_pThreadState;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);
