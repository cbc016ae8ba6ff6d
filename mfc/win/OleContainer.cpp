// Hosting of ActiveX controls through the system's ATL library.
#include "win/OleContainer.h"

#include <afxdisp.h>
#include <comdef.h>

_COM_SMARTPTR_TYPEDEF(IUnknown, __uuidof(IUnknown));

// Exports of atl.dll.
extern "C" {
BOOL WINAPI AtlAxWinInit();
HRESULT WINAPI AtlAxCreateControl(LPCOLESTR lpszName, HWND hWnd, IStream* pStream, IUnknown** ppUnkContainer);
HRESULT WINAPI AtlAxGetControl(HWND hWnd, IUnknown** ppUnkControl);
}

namespace {

constexpr UINT WM_FORWARDMSG = 0x037F; // asks a host window to let its control translate a message

bool g_bContainerEnabled = false;

bool IsHostWindow(HWND hWnd) {
    wchar_t szClass[16] = {};
    return ::GetClassNameW(hWnd, szClass, _countof(szClass)) != 0 && ::lstrcmpiW(szClass, L"AtlAxWin") == 0;
}

} // namespace

void AFX_CDECL AfxEnableControlContainer(COccManager*) {
    // No more than a note: this is called while the library is being loaded.
    g_bContainerEnabled = true;
}

void OleContainer::Prepare() {
    if (g_bContainerEnabled) AtlAxWinInit();
}

bool OleContainer::CreateControl(HWND hWndHost, LPCWSTR pszClass) {
    // Asked first, because the host would take any other text for the address of a document to show, and
    // would look for a server program when there is no such control.
    CLSID clsid;
    IUnknownPtr factory;
    const bool bCreated =
        SUCCEEDED(::CLSIDFromString(pszClass, &clsid)) &&
        SUCCEEDED(::CoGetClassObject(clsid, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(&factory))) &&
        SUCCEEDED(AtlAxCreateControl(pszClass, hWndHost, nullptr, nullptr));
    // The control stands for the host window among the dialog's other controls: which of them cover it is for
    // the control to say.
    const HWND hWndControl = ::GetWindow(hWndHost, GW_CHILD);
    if (hWndControl != nullptr && (::GetWindowLongPtr(hWndControl, GWL_STYLE) & WS_CLIPSIBLINGS))
        ::SetWindowLongPtr(hWndHost, GWL_STYLE, ::GetWindowLongPtr(hWndHost, GWL_STYLE) | WS_CLIPSIBLINGS);
    return bCreated;
}

IUnknown* OleContainer::GetControl(HWND hWndHost) {
    IUnknown* pControl = nullptr;
    return IsHostWindow(hWndHost) && SUCCEEDED(AtlAxGetControl(hWndHost, &pControl)) ? pControl : nullptr;
}

BOOL OleContainer::TranslateKey(HWND hWndDialog, MSG* pMsg) {
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST) return FALSE;
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr && hWnd != hWndDialog;
         hWnd = ::GetAncestor(hWnd, GA_PARENT)) {
        if (IsHostWindow(hWnd))
            return ::SendMessageW(hWnd, WM_FORWARDMSG, 0, reinterpret_cast<LPARAM>(pMsg)) != 0;
    }
    return FALSE;
}
