// What the framework keeps per thread: which object stands for which handle, and the message in progress.
#pragma once

#include <afxwin.h>

#include <unordered_map>

class CThreadWindows {
public:
    // The calling thread's record, made when first needed.
    static CThreadWindows& Get();
    // Null when the thread has none.
    static CThreadWindows* Find();
    // Frees the calling thread's record if it holds nothing more.
    static void DropIfUnused();
    // Frees the calling thread's record whatever it holds; the thread is about to end.
    static void Drop();
    // Gives up the object that waits for the window that the calling thread creates; null when none waits.
    static CWnd* TakeCreated();

    CWnd* FindWindow(HWND hWnd) const;

    std::unordered_map<HWND, CWnd*> m_windows;
    CWnd* m_pCreating = nullptr;
    MSG m_message = {}; // the one being handled by a window procedure
    int m_nMessageDepth = 0;
};

// The message that a window procedure handles, until the end of the scope.
class CMessageInProgress {
public:
    CMessageInProgress(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    ~CMessageInProgress();
    CMessageInProgress(const CMessageInProgress&) = delete;
    CMessageInProgress& operator=(const CMessageInProgress&) = delete;

private:
    CThreadWindows& m_windows;
    MSG m_previous;
};
