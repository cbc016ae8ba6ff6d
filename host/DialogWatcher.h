// Looks after the dialogs of an unattended interactive run: takes their pictures and confirms them.
#pragma once

#include <afxwin.h>

#include <vector>

namespace host {

/// Works by a timer of the user-interface thread, which modal dialogs keep running. One at a time.
class DialogWatcher {
public:
    /// Pictures go to `folder` (none when it is empty), numbered and named after the dialog's title.
    /// `confirm` presses the default button of each dialog after its picture, and cancels a dialog that stays
    /// all the same. A dialog without buttons is left to close by itself.
    DialogWatcher(const CString& folder, bool confirm);
    ~DialogWatcher();
    DialogWatcher& operator=(DialogWatcher&&) = delete;

private:
    struct SeenDialog {
        HWND window;
        ULONGLONG since; ///< first seen or last answered, milliseconds
        int answers;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    static std::vector<HWND> VisibleDialogs();
    void Look();
    static bool IsDue(const SeenDialog& dialog, ULONGLONG now);
    void TakePicture(HWND dialog);
    static void Confirm(HWND dialog);

    CString m_folder;
    bool m_confirm;
    int m_pictures = 0;
    std::vector<SeenDialog> m_seen;
    UINT_PTR m_timer;
};

} // namespace host
