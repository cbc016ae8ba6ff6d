// CWinApp: the application object of a program or of a DLL, and what the framework knows of it.
#pragma once

#include "win/Wnd.h"

// One static object per module.
class CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr); // the name is borrowed
    virtual ~CWinApp();

    CWnd* m_pMainWnd; // borrowed; owner of dialogs that are given no parent
    HINSTANCE m_hInstance;
    LPCTSTR m_pszAppName; // the constructor's name, else the module's file name without folder and extension

    // FALSE keeps a DLL from being loaded.
    virtual BOOL InitInstance();
    virtual int ExitInstance();

private:
    friend BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    void SetModule(HINSTANCE hInstance);
    CString m_strAppName;
};

CWinApp* AFXAPI AfxGetApp();
CWnd* AFXAPI AfxGetMainWnd();

// Tells the framework its module. A regular DLL's entry point calls it; a program that starts in wmain
// calls it first. Only the instance is looked at.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
