// Pictures and confirmation of dialogs.
#include <afxwin.h>

#include <algorithm>

#include "host/Console.h"
#include "host/DialogWatcher.h"
#include "host/Paths.h"
#include "host/PngFile.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr UINT kLookEveryMs = 100;
// Long enough for a dialog's controls to paint and for a short transfer to show its log.
constexpr ULONGLONG kSettleMs = 1200;

CDialogWatcher* g_watcher = nullptr; // the timer procedure has no argument of its own

BOOL CALLBACK AddDialog(HWND window, LPARAM list) {
    wchar_t windowClass[16];
    const bool named = ::GetClassNameW(window, windowClass, _countof(windowClass)) != 0;
    if (named && wcscmp(windowClass, L"#32770") == 0 && ::IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

} // namespace

CDialogWatcher::CDialogWatcher(const CString& folder, bool confirm)
    : m_strFolder(folder), m_bConfirm(confirm) {
    g_watcher = this;
    m_nTimer = ::SetTimer(nullptr, 0, kLookEveryMs, OnTimer);
}

CDialogWatcher::~CDialogWatcher() {
    ::KillTimer(nullptr, m_nTimer);
    g_watcher = nullptr;
}

void CALLBACK CDialogWatcher::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (g_watcher) g_watcher->Look();
}

std::vector<HWND> CDialogWatcher::VisibleDialogs() {
    std::vector<HWND> dialogs;
    ::EnumThreadWindows(::GetCurrentThreadId(), AddDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

void CDialogWatcher::Look() {
    const std::vector<HWND> dialogs = VisibleDialogs();
    // A closed dialog's handle may come back as another dialog's.
    m_seen.erase(std::remove_if(m_seen.begin(), m_seen.end(),
                                [&dialogs](const SSeenDialog& seen) {
                                    return std::find(dialogs.begin(), dialogs.end(), seen.m_hWnd) ==
                                           dialogs.end();
                                }),
                 m_seen.end());
    const ULONGLONG now = ::GetTickCount64();
    for (HWND dialog : dialogs) {
        auto seen = std::find_if(m_seen.begin(), m_seen.end(),
                                 [dialog](const SSeenDialog& entry) { return entry.m_hWnd == dialog; });
        if (seen == m_seen.end()) {
            m_seen.push_back({dialog, now, false});
        } else if (!seen->m_bHandled && now - seen->m_nFirstSeen >= kSettleMs) {
            seen->m_bHandled = true;
            Handle(dialog);
        }
    }
}

void CDialogWatcher::Handle(HWND dialog) {
    if (!m_strFolder.IsEmpty()) {
        CString name;
        name.Format(L"%02d.png", ++m_nPictures);
        if (!SavePicture(dialog, JoinPath(m_strFolder, name))) PrintError(Text(EText::PictureFailed, {name}));
    }
    if (!m_bConfirm || !::IsWindowEnabled(dialog)) return;
    const LRESULT found = ::SendMessageW(dialog, DM_GETDEFID, 0, 0);
    const HWND button = HIWORD(found) == DC_HASDEFID ? ::GetDlgItem(dialog, LOWORD(found)) : nullptr;
    if (button) {
        ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(LOWORD(found), BN_CLICKED),
                       reinterpret_cast<LPARAM>(button));
    }
}

} // namespace host
