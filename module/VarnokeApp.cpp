// Start and end of the library.
#include "module/VarnokeApp.h"

#include <afxdisp.h>
#include <optional>

#include "base/ComApartment.h"
#include "module/Guarded.h"
#include "module/Trace.h"
#include "base/Paths.h"

CVarnokeApp theApp;

namespace {
// The framework calls ExitInstance after a failed InitInstance too.
std::optional<base::ComApartment> apartment;
} // namespace

BOOL CVarnokeApp::InitInstance() {
    return varnoke::Guarded(FALSE, [this] {
        CWinApp::InitInstance();
        varnoke::ConfigureTrace();
        apartment.emplace();
        AfxEnableControlContainer();
        FindModuleFolder();
        return TRUE;
    });
}

int CVarnokeApp::ExitInstance() {
    return varnoke::Guarded(1, [this] {
        apartment.reset();
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
    m_moduleFolder = base::FolderPrefix(base::ModulePath(m_hInstance)).c_str();
    return m_moduleFolder.IsEmpty() ? 0 : 1;
}
