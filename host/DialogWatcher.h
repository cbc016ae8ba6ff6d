// Looks after the dialogs of an unattended interactive run: takes their pictures and confirms them.
#pragma once

#include <afxwin.h>

#include <vector>

namespace host {

/// Works by a timer of the user-interface thread, which modal dialogs keep running. One at a time.
class CDialogWatcher {
public:
    /// Pictures go to `folder` (none when it is empty), numbered and named after the dialog's title.
    /// `confirm` presses the default button of each dialog after its picture, and cancels a dialog that stays
    /// all the same. A dialog without buttons is left to close by itself.
    CDialogWatcher(const CString& folder, bool confirm);
    ~CDialogWatcher();
    CDialogWatcher(const CDialogWatcher&) = delete;
    CDialogWatcher& operator=(const CDialogWatcher&) = delete;

private:
    struct SSeenDialog {
        HWND m_hWnd;
        ULONGLONG m_nSince; ///< first seen or last answered, milliseconds
        int m_nAnswers;
    };

    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);
    static std::vector<HWND> VisibleDialogs();
    void Look();
    static bool IsDue(const SSeenDialog& dialog, ULONGLONG now);
    void TakePicture(HWND dialog);
    static void Confirm(HWND dialog);

    CString m_strFolder;
    bool m_bConfirm;
    int m_nPictures = 0;
    std::vector<SSeenDialog> m_seen;
    UINT_PTR m_nTimer;
};

} // namespace host
