// CWinApp: the application object of a program or of a DLL, and what the framework knows of it.
#pragma once

#include "win/Wnd.h"

class CDataRecoveryHandler;
class CDocument;

class CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    virtual ~CWinThread();

    // FALSE keeps a DLL from being loaded.
    virtual BOOL InitInstance();
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL PumpMessage();
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual int ExitInstance();
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    virtual CWnd* GetMainWnd();
    virtual void Delete();

    CWnd* m_pMainWnd;

protected:
    BYTE m_reserved[0x40];
};

// One static object per module.
class CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    virtual ~CWinApp();

    HINSTANCE m_hInstance;

    virtual BOOL InitInstance() override;
    virtual int Run() override;
    virtual BOOL OnIdle(LONG lCount) override;
    virtual int ExitInstance() override;
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    // What follows holds the places of MFC's virtual functions.
    virtual UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    virtual BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    virtual CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    virtual BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    virtual BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    virtual BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    virtual void InitLibId();
    virtual BOOL Register();
    virtual BOOL Unregister();
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    virtual BOOL InitApplication();
    virtual BOOL SaveAllModified();
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    virtual void DoWaitCursor(int nCode);
    virtual BOOL OnDDECommand(LPTSTR lpszCommand);
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelpW(DWORD_PTR dwData, UINT nCmd = 0x000F);
    virtual void WinHelpInternal(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual HRESULT RegisterWithRestartManager(BOOL bRegisterRecoveryCallback,
                                               const CString& strRestartIdentifier);
    virtual HRESULT RegisterWithRestartManager(LPCWSTR pwzCommandLineArgs, DWORD dwRestartFlags,
                                               DWORD(WINAPI* pRecoveryCallback)(void*), LPVOID lpvParam,
                                               DWORD dwPingInterval, DWORD dwCallbackFlags);
    virtual DWORD ApplicationRecoveryCallback(LPVOID lpvParam);
    virtual BOOL SupportsRestartManager() const { return m_dwRestartManagerSupportFlags & 0x01; }
    virtual BOOL SupportsApplicationRecovery() const { return m_dwRestartManagerSupportFlags & 0x02; }
    virtual BOOL SupportsAutosaveAtRestart() const { return m_dwRestartManagerSupportFlags & 0x04; }
    virtual BOOL SupportsAutosaveAtInterval() const { return m_dwRestartManagerSupportFlags & 0x08; }
    virtual BOOL ReopenPreviousFilesAtRestart() const { return m_dwRestartManagerSupportFlags & 0x10; }
    virtual BOOL RestoreAutosavedFilesAtRestart() const { return m_dwRestartManagerSupportFlags & 0x20; }
    virtual DWORD GetApplicationRestartFlags() { return 0; }
    virtual LPVOID GetApplicationRecoveryParameter() { return nullptr; }
    virtual DWORD GetApplicationRecoveryPingInterval() { return 5000; }
    virtual CDataRecoveryHandler* GetDataRecoveryHandler();
    virtual BOOL IsTaskbarInteractionEnabled();
    virtual BOOL RestartInstance();
    virtual HINSTANCE LoadAppLangResourceDLL();
    virtual BOOL LoadSysPolicies();

protected:
    BYTE m_reserved1[0xBC];
    DWORD m_dwRestartManagerSupportFlags;
    BYTE m_reserved2[0x28];

    DECLARE_MESSAGE_MAP()
};

inline CWinApp* AFXAPI AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

// Tells the framework its module. A regular DLL's entry point calls it; a program that starts in wmain
// calls it first. Only the instance is looked at.
BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
