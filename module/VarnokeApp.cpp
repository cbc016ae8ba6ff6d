// Start and end of the library.
#include "module/VarnokeApp.h"

#include <afxdisp.h>
#include <objbase.h>

#include "module/Guarded.h"
#include "module/ModulePaths.h"

CVarnokeApp theApp;

namespace {
// The framework calls ExitInstance after a failed InitInstance too; an apartment that was refused to us (the
// host's thread is in another kind of apartment) must not be left on the host's account.
bool comInitialized = false;
} // namespace

BOOL CVarnokeApp::InitInstance() {
    return varnoke::Guarded(FALSE, [this] {
        CWinApp::InitInstance();
        comInitialized = SUCCEEDED(::CoInitialize(nullptr));
        AfxEnableControlContainer();
        FindModuleFolder();
        return TRUE;
    });
}

int CVarnokeApp::ExitInstance() {
    return varnoke::Guarded(1, [this] {
        if (comInitialized) {
            comInitialized = false;
            ::CoUninitialize();
        }
        return CWinApp::ExitInstance();
    });
}

CString CVarnokeApp::GetModuleFolder() {
    if (m_moduleFolder.IsEmpty()) {
        FindModuleFolder();
    }
    return m_moduleFolder;
}

int CVarnokeApp::FindModuleFolder() {
    m_moduleFolder = varnoke::FolderOfPath(varnoke::ModuleFilePath(m_hInstance));
    return m_moduleFolder.IsEmpty() ? 0 : 1;
}
