// CWinApp: the application object of a program or of a DLL, and what the framework knows of it.
#pragma once

#include "win/Wnd.h"

class CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    virtual ~CWinThread();

    virtual BOOL InitInstance();
    virtual int Run(); // message loop until WM_QUIT; gives ExitInstance's result
    virtual int ExitInstance();

    CWnd* m_pMainWnd; // borrowed
};

// One static object per module.
class CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszAppName; // the constructor's name, else the module's file name without folder and extension

    virtual BOOL InitInstance() override; // TRUE
    virtual int ExitInstance() override;  // the WM_QUIT exit code in a program, else 0
    CWnd* GetMainWnd() { return m_pMainWnd; }

private:
    friend BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    void SetModule(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow);
    CString m_strAppName;
};

CWinApp* AFXAPI AfxGetApp();
CWnd* AFXAPI AfxGetMainWnd();
LPCTSTR AFXAPI AfxGetAppName();

// Tells the framework its module. A regular DLL's entry point calls it; a program without the
// framework's own start-up calls it first. hPrevInstance is null.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
