// What a program links itself when the framework's code is in mfc140u.dll: that it is the program.
#include <afxwin.h>

AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    return AfxGetAppModuleState();
}

namespace {

// The framework's DLL takes the module that it belongs to for a DLL until told otherwise.
struct CProgramStart {
    CProgramStart() {
        AfxGetAppModuleState()->m_bDLL = FALSE;
        AfxGetAppModuleState()->m_dwVersion = _MFC_VER;
    }
} const g_programStart;

} // namespace
