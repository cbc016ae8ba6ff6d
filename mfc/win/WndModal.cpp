// CWnd: modal loops, message translation and centring.
#include <afxwin.h>

#include <algorithm>

namespace {

// As in a window procedure, a failing handler has dealt with its message.
bool PreTranslate(MSG* pMsg) {
    try {
        for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetAncestor(hWnd, GA_PARENT)) {
            CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
            if (pWnd != nullptr && pWnd->PreTranslateMessage(pMsg)) return true;
        }
        return false;
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    return true;
}

// Fetches and dispatches one message; false for WM_QUIT.
bool PumpMessage() {
    MSG msg = {};
    if (::GetMessage(&msg, nullptr, 0, 0) <= 0) {
        // The loop further out has to end too; as in MFC, it gets no exit code.
        ::PostQuitMessage(0);
        return false;
    }
    if (!PreTranslate(&msg)) {
        ::TranslateMessage(&msg);
        ::DispatchMessage(&msg);
    }
    return true;
}

} // namespace

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const bool bKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool bMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (bKey || bMouse) && ::IsDialogMessage(m_hWnd, lpMsg);
}

int CWnd::RunModalLoop(DWORD dwFlags) {
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    if ((dwFlags & MLF_SHOWONIDLE) && !IsWindowVisible()) {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    }
    const HWND hWndParent = ::GetParent(m_hWnd);
    const bool bTellParent = hWndParent != nullptr && !(GetStyle() & DS_NOIDLEMSG);
    bool bIdleDone = false;
    while (ContinueModal()) {
        MSG msg;
        if (::PeekMessage(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
            bIdleDone = false;
            if (!PumpMessage()) EndModalLoop(-1);
        } else if (!bIdleDone) {
            bIdleDone = true;
            if (bTellParent)
                ::SendMessage(hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
        } else {
            ::WaitMessage();
        }
    }
    m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (!(m_nFlags & WF_CONTINUEMODAL)) return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    PostMessage(WM_NULL); // wakes the loop
}

BOOL CWnd::CheckAutoCenter() {
    return TRUE;
}

namespace {

CRect WorkAreaOf(HWND hWnd) {
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(hWnd, MONITOR_DEFAULTTOPRIMARY), &info);
    return info.rcWork;
}

// Where to centre, and what not to leave.
void FindCenterArea(HWND hWnd, HWND hWndOver, CRect& rectCenter, CRect& rectArea) {
    if (::GetWindowLongPtr(hWnd, GWL_STYLE) & WS_CHILD) {
        const HWND hWndParent = ::GetParent(hWnd);
        ::GetClientRect(hWndParent, rectArea);
        ::GetClientRect(hWndOver, rectCenter);
        ::MapWindowPoints(hWndOver, hWndParent, reinterpret_cast<POINT*>(&rectCenter), 2);
        return;
    }
    // There is nothing to see of a hidden or minimised owner.
    if (hWndOver != nullptr && (!::IsWindowVisible(hWndOver) || ::IsIconic(hWndOver))) hWndOver = nullptr;
    rectArea = WorkAreaOf(hWndOver != nullptr ? hWndOver : ::GetActiveWindow());
    if (hWndOver != nullptr)
        ::GetWindowRect(hWndOver, rectCenter);
    else
        rectCenter = rectArea;
}

} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    HWND hWndOver = pAlternateOwner->GetSafeHwnd();
    if (hWndOver == nullptr)
        hWndOver = GetStyle() & WS_CHILD ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    CRect rect, rectCenter, rectArea;
    GetWindowRect(rect);
    FindCenterArea(m_hWnd, hWndOver, rectCenter, rectArea);

    LONG x = (rectCenter.left + rectCenter.right) / 2 - rect.Width() / 2;
    LONG y = (rectCenter.top + rectCenter.bottom) / 2 - rect.Height() / 2;
    // The upper left corner comes last: the caption of a window too large must stay in reach.
    x = std::max(std::min(x, rectArea.right - rect.Width()), rectArea.left);
    y = std::max(std::min(y, rectArea.bottom - rect.Height()), rectArea.top);
    SetWindowPos(nullptr, x, y, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
