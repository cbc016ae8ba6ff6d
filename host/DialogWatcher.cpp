// Pictures and confirmation of dialogs.
#include <afxwin.h>

#include <algorithm>

#include "host/Report.h"
#include "host/DialogWatcher.h"
#include "host/Paths.h"
#include "host/PngFile.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr UINT kLookEveryMs = 100;
// Long enough for a dialog's controls to paint and for a short transfer to show its log.
constexpr ULONGLONG kSettleMs = 1200;

DialogWatcher* g_watcher = nullptr; // the timer procedure has no argument of its own

BOOL CALLBACK AddDialog(HWND window, LPARAM list) {
    wchar_t windowClass[16];
    const bool named = ::GetClassNameW(window, windowClass, _countof(windowClass)) != 0;
    if (named && wcscmp(windowClass, L"#32770") == 0 && ::IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

HWND DefaultButton(HWND dialog) {
    const LRESULT found = ::SendMessageW(dialog, DM_GETDEFID, 0, 0);
    return HIWORD(found) == DC_HASDEFID ? ::GetDlgItem(dialog, LOWORD(found)) : nullptr;
}

} // namespace

DialogWatcher::DialogWatcher(const CString& folder, bool confirm) : m_folder(folder), m_confirm(confirm) {
    g_watcher = this;
    m_timer = ::SetTimer(nullptr, 0, kLookEveryMs, OnTimer);
}

DialogWatcher::~DialogWatcher() {
    ::KillTimer(nullptr, m_timer);
    g_watcher = nullptr;
}

void CALLBACK DialogWatcher::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (g_watcher) g_watcher->Look();
}

std::vector<HWND> DialogWatcher::VisibleDialogs() {
    std::vector<HWND> dialogs;
    ::EnumThreadWindows(::GetCurrentThreadId(), AddDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

void DialogWatcher::Look() {
    const std::vector<HWND> dialogs = VisibleDialogs();
    // A closed dialog's handle may come back as another dialog's.
    m_seen.erase(std::remove_if(m_seen.begin(), m_seen.end(),
                                [&dialogs](const SeenDialog& seen) {
                                    return std::find(dialogs.begin(), dialogs.end(), seen.window) ==
                                           dialogs.end();
                                }),
                 m_seen.end());
    const ULONGLONG now = ::GetTickCount64();
    for (HWND dialog : dialogs) {
        auto seen = std::find_if(m_seen.begin(), m_seen.end(),
                                 [dialog](const SeenDialog& entry) { return entry.window == dialog; });
        if (seen == m_seen.end()) {
            m_seen.push_back({dialog, now, 0});
        } else if (IsDue(*seen, now)) {
            seen->since = now;
            if (++seen->answers == 1) TakePicture(dialog);
            if (!m_confirm) continue;
            if (seen->answers == 1) {
                Confirm(dialog);
            } else {
                ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
            }
        }
    }
}

bool DialogWatcher::IsDue(const SeenDialog& dialog, ULONGLONG now) {
    if (now - dialog.since < kSettleMs) return false;
    if (dialog.answers == 0) return true;
    // A transfer has no button and takes its time; a disabled dialog waits for its message box.
    return DefaultButton(dialog.window) && ::IsWindowEnabled(dialog.window);
}

void DialogWatcher::TakePicture(HWND dialog) {
    if (m_folder.IsEmpty()) return;
    wchar_t title[64];
    ::GetWindowTextW(dialog, title, _countof(title));
    CString name;
    name.Format(L"%02d-%s.png", ++m_pictures, title);
    if (!SavePicture(dialog, JoinPath(m_folder, name))) TellError(TextId::PictureFailed, {name});
}

void DialogWatcher::Confirm(HWND dialog) {
    const HWND button = ::IsWindowEnabled(dialog) ? DefaultButton(dialog) : nullptr;
    if (button) {
        ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(button), BN_CLICKED),
                       reinterpret_cast<LPARAM>(button));
    }
}

} // namespace host
