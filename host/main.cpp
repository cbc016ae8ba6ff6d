// varnoke-host.exe: a host program that uses Varnoke.dll as a drawing program does.
#include <afxwin.h>
#include <objbase.h>

#include "host/Command.h"
#include "host/CommandTable.h"
#include "host/Console.h"
#include "host/Owned.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace {

/// The framework's application object of this program.
CWinApp theApp;

/// COM on the main thread, for the library's operations.
class ComThread {
public:
    ComThread() : m_ready(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComThread() {
        if (m_ready) ::CoUninitialize();
    }
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;

    bool IsReady() const { return m_ready; }

private:
    bool m_ready;
};

/// The product's local services, whose folder holds the model configuration. Without them the library looks
/// beside this program.
host::LibraryHandle LoadLocalServices() {
    return host::LibraryHandle(::LoadLibraryW(host::JoinPath(host::ModuleFolder(nullptr), L"QORLocal.dll")));
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const ComThread com;
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        !com.IsReady()) {
        return host::exitFailed;
    }
    const host::LibraryHandle localServices = LoadLocalServices();
    try {
        return host::RunCommand(std::vector<CString>(argv + 1, argv + argc));
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
    host::PrintError(host::Text(host::TextId::Unexpected));
    return host::exitFailed;
}
