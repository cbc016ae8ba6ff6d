// The library's application object.
#pragma once

#include <afxwin.h>

/// Prepares COM and the library's folder when the library is loaded, and releases COM when it is unloaded.
class CVarnokeApp : public CWinApp {
public:
    BOOL InitInstance() override;
    int ExitInstance() override;

    /// The folder of the library's own file with its trailing backslash; empty when it has none.
    CString GetModuleFolder();

private:
    /// Returns 1 when a folder was found, else 0.
    int FindModuleFolder();

    CString m_moduleFolder;
};

extern CVarnokeApp theApp;
