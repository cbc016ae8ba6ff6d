#pragma once
#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

namespace tests {

// A message box that was shown; it has been answered with OK.
struct SeenBox {
    std::wstring caption;
    std::wstring text;
    bool information = false; // shown with the information icon
    std::wstring ownerCaption;
    int height = 0; // pixels
};

// A private message of a transfer dialog, as the dialog took it from the queue.
struct SeenMessage {
    UINT message;
    std::wstring text; // of the string that wParam carried
    ULONGLONG time;    // ms
};

// Drives the real modal dialogs that a call shows in this process, by window hooks and control ids.
// Each dialog gets the next script, which runs in its modal loop once it is active; a dialog without a
// script is a failure and is cancelled. When nothing happens for some seconds, the test has failed and all
// its dialogs are ended. One driver at a time; on the thread that shows the dialogs.
class DialogDriver {
public:
    using Script = std::function<void(HWND dialog)>;

    DialogDriver();
    ~DialogDriver();
    DialogDriver& operator=(DialogDriver&&) = delete;

    void Next(Script script);
    // Runs when the dialog is about to be destroyed, its controls still there; also one that never showed.
    void AtEnd(Script script);
    // Runs in the modal loop after the dialog took the count-th private or timer message of that number.
    void After(UINT message, int count, Script script);
    // Runs in the modal loop, behind the messages that are waiting.
    void Post(HWND window, Script script);

    int ShownDialogs() const { return m_shownDialogs; }
    // When the last dialog was destroyed, ms.
    ULONGLONG EndedAt() const { return m_endedAt; }
    // The owners of the dialogs that were not shown over another one.
    const std::set<HWND>& Owners() const { return m_owners; }
    const std::vector<SeenBox>& Boxes() const { return m_boxes; }
    const std::vector<SeenMessage>& Messages() const { return m_messages; }
    // Drops what was seen, for tests that look at the process's memory.
    void Forget();
    // Whether every script has run.
    bool AllRan() const { return m_scripts.empty() && m_triggers.empty(); }

private:
    struct Trigger {
        UINT message;
        int count;
        Script script;
    };

    static LRESULT CALLBACK CbtHook(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK MessageHook(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK RunnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Activated(HWND window);
    void Destroyed(HWND window);
    void Taken(const MSG& message);
    void Run(HWND window);
    void AnswerBox(HWND box);
    void EndWhenStuck();
    void Progress();

    HWND m_runner = nullptr;
    HHOOK m_cbtHook = nullptr;
    HHOOK m_messageHook = nullptr;
    std::set<HWND> m_known, m_owners;
    std::deque<Script> m_scripts;
    std::deque<std::pair<HWND, Script>> m_posted;
    std::vector<Trigger> m_triggers;
    Script m_atEnd;
    HWND m_current = nullptr;
    int m_shownDialogs = 0;
    ULONGLONG m_endedAt = 0, m_lastProgress = 0;
    bool m_stuck = false;
    std::vector<SeenBox> m_boxes;
    std::vector<SeenMessage> m_messages;
};

// Controls of a dialog, by id.
std::wstring TextOf(HWND dialog, int id);
// Presses a button or toggles a check box, as a user would.
void Click(HWND dialog, int id);
bool Checked(HWND dialog, int id);
bool Enabled(HWND dialog, int id);
// Combo boxes. Choose selects an item and sends the notifications of a confirmed selection.
int Selection(HWND dialog, int id);
void Choose(HWND dialog, int id, int index);
std::vector<std::wstring> Items(HWND dialog, int id);
int ItemData(HWND dialog, int id, int index);

} // namespace tests
