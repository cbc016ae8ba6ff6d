// CWinApp: the application object of a program or of a DLL, and what the framework knows of it.
#pragma once

#include "win/Wnd.h"

// One static object per module.
class CWinApp : public CCmdTarget {
    DECLARE_DYNAMIC(CWinApp)
public:
    CWinApp();
    virtual ~CWinApp();

    HINSTANCE m_hInstance;

    // FALSE keeps a DLL from being loaded.
    virtual BOOL InitInstance();
    virtual int ExitInstance();
};

CWinApp* AFXAPI AfxGetApp();

// Tells the framework its module. A regular DLL's entry point calls it; a program that starts in wmain
// calls it first. Only the instance is looked at.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
