// varnoke-host.exe: a host program that uses Varnoke.dll as a drawing program does.
#include <afxwin.h>

#include "host/Commands.h"
#include "host/Report.h"
#include "base/ComApartment.h"
#include "base/Owned.h"
#include "host/LocalClasses.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace {

/// The framework's application object of this program.
CWinApp theApp;

/// The product's local services, whose folder holds the model configuration. Without them the library looks
/// beside this program.
base::LibraryHandle LoadLocalServices() {
    return base::LibraryHandle(::LoadLibraryW(host::JoinPath(host::ModuleFolder(nullptr), L"QORLocal.dll")));
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const base::ComApartment apartment; // for the library's operations
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        FAILED(apartment.Result())) {
        return host::kExitFailed;
    }
    const host::LocalClasses localClasses;
    const base::LibraryHandle localServices = LoadLocalServices();
    try {
        return host::RunCommand(std::vector<CString>(argv + 1, argv + argc));
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
    host::TellError(host::TextId::Unexpected);
    return host::EndReport(host::kExitFailed);
}
