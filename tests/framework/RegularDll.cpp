// A regular DLL which notes in the environment what is called, and fails its start when told to.
#include <afxwin.h>

namespace {

void Note(const wchar_t* text) {
    wchar_t notes[64] = {};
    ::GetEnvironmentVariableW(L"REGULAR_DLL_NOTES", notes, _countof(notes));
    ::SetEnvironmentVariableW(L"REGULAR_DLL_NOTES", CString(notes) + text);
}

class CRegularDll : public CWinApp {
public:
    BOOL InitInstance() override {
        Note(m_hInstance == AfxGetInstanceHandle() && AfxGetApp() == this ? L"init " : L"lost ");
        wchar_t mode[16] = {};
        ::GetEnvironmentVariableW(L"REGULAR_DLL_MODE", mode, _countof(mode));
        if (wcscmp(mode, L"throw") == 0) AfxThrowMemoryException();
        return wcscmp(mode, L"refuse") != 0;
    }
    int ExitInstance() override {
        Note(L"exit ");
        return CWinApp::ExitInstance();
    }
};

CRegularDll theDll;

} // namespace
