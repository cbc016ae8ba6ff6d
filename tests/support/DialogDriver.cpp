#include "tests/support/DialogDriver.h"
#include <gtest/gtest.h>
#include "tests/support/Watchdog.h"

namespace tests {

namespace {

const UINT kRunScript = WM_APP + 1;
const UINT kFirstReport = WM_USER + 1000; // private messages of the transfer dialogs
const UINT kLastReport = kFirstReport + 13;
const ULONGLONG kPatience = 10000; // ms
const int kBoxText = 0xffff;
const int kColorMixButton = 719; // of the system's colour picker, whose labels share the box's id

DialogDriver* g_driver = nullptr;

std::wstring WindowText(HWND window) {
    std::wstring text(GetWindowTextLengthW(window) + 1, L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    return text;
}

bool IsDialog(HWND window) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return wcscmp(name, L"#32770") == 0;
}

bool IsMessageBox(HWND dialog) {
    return GetDlgItem(dialog, kBoxText) && !GetDlgItem(dialog, kColorMixButton);
}

bool HasInformationIcon(HWND box) {
    const HICON information = LoadIconW(nullptr, IDI_INFORMATION);
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const bool shows = (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
        if (shows && SendMessageW(child, STM_GETICON, 0, 0) == reinterpret_cast<LRESULT>(information))
            return true;
    }
    return false;
}

} // namespace

DialogDriver::DialogDriver() {
    g_driver = this;
    Progress();
    m_runner = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(m_runner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&RunnerProc));
    SetTimer(m_runner, 1, 500, nullptr);
    m_cbtHook = SetWindowsHookExW(WH_CBT, &CbtHook, nullptr, GetCurrentThreadId());
    m_messageHook = SetWindowsHookExW(WH_GETMESSAGE, &MessageHook, nullptr, GetCurrentThreadId());
}

DialogDriver::~DialogDriver() {
    UnhookWindowsHookEx(m_messageHook);
    UnhookWindowsHookEx(m_cbtHook);
    DestroyWindow(m_runner);
    MSG quit;
    if (m_stuck) PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    g_driver = nullptr;
    Watchdog::Allow();
}

void DialogDriver::Next(Script script) {
    m_scripts.push_back(std::move(script));
}

void DialogDriver::AtEnd(Script script) {
    m_atEnd = std::move(script);
}

void DialogDriver::After(UINT message, int count, Script script) {
    m_triggers.push_back({message, count, std::move(script)});
}

LRESULT CALLBACK DialogDriver::CbtHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE) g_driver->Activated(reinterpret_cast<HWND>(wParam));
    if (code == HCBT_DESTROYWND) g_driver->Destroyed(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK DialogDriver::MessageHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) g_driver->Taken(*reinterpret_cast<const MSG*>(lParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK DialogDriver::RunnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kRunScript) g_driver->Run(reinterpret_cast<HWND>(wParam));
    if (message == WM_TIMER) g_driver->EndWhenStuck();
    return DefWindowProcW(window, message, wParam, lParam);
}

void DialogDriver::Progress() {
    m_lastProgress = GetTickCount64();
    Watchdog::Allow(std::chrono::seconds(20)); // with a thread that takes no messages
}

// The request to quit ends every modal loop, however deep.
void DialogDriver::EndWhenStuck() {
    if (m_known.empty() || GetTickCount64() - m_lastProgress < kPatience) return;
    if (!m_stuck) ADD_FAILURE() << "a dialog did not end";
    m_stuck = true;
    PostQuitMessage(0);
}

void DialogDriver::Activated(HWND window) {
    if (!IsDialog(window) || !m_known.insert(window).second) return;
    Progress();
    if (IsMessageBox(window)) {
        Post(window, [this](HWND box) { AnswerBox(box); });
        return;
    }
    if (m_known.size() == 1) m_owners.insert(GetWindow(window, GW_OWNER));
    ++m_shownDialogs;
    m_current = window;
    if (m_scripts.empty()) {
        ADD_FAILURE() << "an unexpected dialog was shown";
        Post(window, [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
        return;
    }
    Post(window, std::move(m_scripts.front()));
    m_scripts.pop_front();
}

void DialogDriver::Destroyed(HWND window) {
    const bool shown = m_known.erase(window) != 0;
    if (!IsDialog(window) || (shown && window != m_current)) return;
    Progress();
    m_current = nullptr;
    m_endedAt = GetTickCount64();
    if (m_atEnd) m_atEnd(window);
    m_atEnd = nullptr;
}

void DialogDriver::Taken(const MSG& message) {
    const bool reported = message.message >= kFirstReport && message.message <= kLastReport;
    if (!m_current || message.hwnd != m_current || (!reported && message.message != WM_TIMER)) return;
    if (reported) {
        const auto text = reinterpret_cast<const wchar_t*>(message.wParam);
        m_messages.push_back({message.message, text ? text : L"", GetTickCount64()});
        Progress();
    }
    for (auto trigger = m_triggers.begin(); trigger != m_triggers.end();) {
        if (trigger->message == message.message && --trigger->count == 0) {
            Post(m_current, std::move(trigger->script));
            trigger = m_triggers.erase(trigger);
        } else {
            ++trigger;
        }
    }
}

void DialogDriver::Forget() {
    m_boxes.clear();
    m_messages.clear();
}

void DialogDriver::Post(HWND window, Script script) {
    m_posted.emplace_back(window, std::move(script));
    PostMessageW(m_runner, kRunScript, reinterpret_cast<WPARAM>(window), 0);
}

void DialogDriver::Run(HWND window) {
    for (auto posted = m_posted.begin(); posted != m_posted.end(); ++posted) {
        if (posted->first != window) continue;
        const Script script = std::move(posted->second);
        m_posted.erase(posted);
        script(window);
        Progress();
        return;
    }
}

void DialogDriver::AnswerBox(HWND box) {
    const HWND owner = GetWindow(box, GW_OWNER);
    RECT bounds = {};
    GetWindowRect(box, &bounds);
    m_boxes.push_back({WindowText(box), TextOf(box, kBoxText), HasInformationIcon(box), WindowText(owner),
                       static_cast<int>(bounds.bottom - bounds.top)});
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

std::wstring TextOf(HWND dialog, int id) {
    return WindowText(GetDlgItem(dialog, id));
}

void Click(HWND dialog, int id) {
    SendDlgItemMessageW(dialog, id, BM_CLICK, 0, 0);
}

bool Checked(HWND dialog, int id) {
    return IsDlgButtonChecked(dialog, id) == BST_CHECKED;
}

bool Enabled(HWND dialog, int id) {
    return IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE;
}

int Selection(HWND dialog, int id) {
    return static_cast<int>(SendDlgItemMessageW(dialog, id, CB_GETCURSEL, 0, 0));
}

void Choose(HWND dialog, int id, int index) {
    const LPARAM combo = reinterpret_cast<LPARAM>(GetDlgItem(dialog, id));
    SendDlgItemMessageW(dialog, id, CB_SETCURSEL, index, 0);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELENDOK), combo);
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE), combo);
}

std::vector<std::wstring> Items(HWND dialog, int id) {
    std::vector<std::wstring> items(SendDlgItemMessageW(dialog, id, CB_GETCOUNT, 0, 0));
    for (size_t i = 0; i < items.size(); ++i) {
        std::wstring text(SendDlgItemMessageW(dialog, id, CB_GETLBTEXTLEN, i, 0) + 1, L'\0');
        SendDlgItemMessageW(dialog, id, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        items[i] = text.c_str();
    }
    return items;
}

int ItemData(HWND dialog, int id, int index) {
    return static_cast<int>(SendDlgItemMessageW(dialog, id, CB_GETITEMDATA, index, 0));
}

} // namespace tests
