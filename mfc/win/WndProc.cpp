// How messages reach a window's object: the window procedure, dispatch through the maps, reflection.
#include "win/ThreadWindows.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
END_MESSAGE_MAP()

namespace {

// The system sees an ordinary result where a handler failed.
LRESULT ResultOfFailedHandler(HWND hWnd, UINT nMsg) {
    switch (nMsg) {
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        ValidateRect(hWnd, nullptr); // else the message would come again at once
        return 0;
    default:
        return 0;
    }
}

bool IsOnTop(HWND hWnd) {
    return ::GetWindowLongPtr(hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&AfxWndProc);
}

// Calls an entry's function as what it is. It may delete the object.
LRESULT CallHandler(CWnd& wnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    switch (entry.nSig) {
    case AfxSig_l_w_l:
        return (wnd.*reinterpret_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(entry.pfn))(wParam, lParam);
    case AfxSig_v_v_v:
        (wnd.*reinterpret_cast<void (CWnd::*)()>(entry.pfn))();
        return 0;
    case AfxSig_v_w_v:
        (wnd.*reinterpret_cast<void (CWnd::*)(WPARAM)>(entry.pfn))(wParam);
        return 0;
    case AfxSig_v_i_s:
        (wnd.*reinterpret_cast<void (CWnd::*)(int, LPARAM)>(entry.pfn))(static_cast<int>(wParam), lParam);
        return TRUE;
    default:
        AfxThrowNotSupportedException();
    }
}

WNDPROC PutOnTop(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
}

} // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    try {
        const CMessageInProgress progress(hWnd, nMsg, wParam, lParam);
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        return pWnd != nullptr ? pWnd->WindowProc(nMsg, wParam, lParam)
                               : ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    return ResultOfFailedHandler(hWnd, nMsg);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT lResult = 0;
    return OnWndMsg(message, wParam, lParam, &lResult) ? lResult : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper == nullptr) return ::DefWindowProc(m_hWnd, message, wParam, lParam);
    const HWND hWnd = m_hWnd;
    const bool bOnTop = IsOnTop(hWnd);
    const LRESULT lResult = ::CallWindowProc(m_pfnSuper, hWnd, message, wParam, lParam);
    // Wine's host of ActiveX controls ends by putting back the procedure that it found, and so takes ours out
    // before the window's last message.
    if (message == WM_DESTROY && bOnTop && m_hWnd == hWnd && !IsOnTop(hWnd)) m_pfnSuper = PutOnTop(hWnd);
    return lResult;
}

LRESULT CWnd::Default() {
    const MSG message = CThreadWindows::Get().m_message;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) return FALSE;
        *pResult = 1;
        return TRUE;
    }
    const AFX_MSGMAP_ENTRY* pEntry = FindMessageEntry(message, 0, 0);
    if (pEntry == nullptr) return FALSE;
    *pResult = CallHandler(*this, *pEntry, wParam, lParam);
    return TRUE;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND hWndControl = reinterpret_cast<HWND>(lParam);
    if (hWndControl != nullptr && ReflectLastMsg(hWndControl)) return TRUE;
    const UINT nID = LOWORD(wParam);
    if (nID == 0) return FALSE;
    return OnCmdMsg(nID, hWndControl != nullptr ? HIWORD(wParam) : CN_COMMAND, nullptr, nullptr);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* pChild = FromHandlePermanent(hWndChild);
    return pChild != nullptr && pChild->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = CThreadWindows::Get().m_message;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM, LRESULT*) {
    return message == WM_COMMAND &&
           OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr);
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType != ODT_MENU && ReflectLastMsg(lpDrawItemStruct->hwndItem)) return;
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType != ODT_MENU &&
        ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID))))
        return;
    Default();
}

void CWnd::OnDestroy() {
    Default();
}

void CWnd::OnNcDestroy() {
    Default();
    if (m_pfnSuper != nullptr) SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    if (m_nFlags & WF_CONTINUEMODAL) EndModalLoop(-1);
    Detach();
    PostNcDestroy();
}
