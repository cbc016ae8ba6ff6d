#pragma once

#include <afxwin.h>
#include "base/Owned.h"
#include "varnoke/SignRecords.h"
#include "ui/TransferVariant.h"

/// The thread that transfers the documents of a list, one after the other.
/// Reports to its window by posted messages only. A message about a file carries its local path in wParam,
/// as a BSTR with room for at least 1024 characters, zero-filled; whoever handles the message frees it.
/// Use: one run per object. All members are for the window's thread; the window must call Close while it is
/// still there, and nobody may free the list before Wait has returned.
class CTransferWorker {
public:
    explicit CTransferWorker(const varnoke::TransferVariant& variant);
    ~CTransferWorker(); // closes and waits
    CTransferWorker& operator=(CTransferWorker&&) = delete;

    /// Starts the thread. The list is borrowed; the worker writes the state of its items.
    bool Start(SSignFileDUL* list, HWND window);
    /// To be called for each message that has been handled: the worker lets only so many lie in the queue, so
    /// that the window stays quick to answer.
    void ReportTaken();
    /// After the file in hand no further one is transferred and nothing more is posted; what was posted and
    /// not yet handled is taken back.
    void Close();
    /// Whether no thread is under way.
    bool HasEnded() const;
    /// Returns when the thread has ended. Until then messages that are sent or posted to this thread's
    /// windows are handled, calls from other apartments among them, but no input.
    void Wait();

private:
    static unsigned __stdcall ThreadMain(void* worker);
    unsigned Run();
    void TransferList();
    bool TransferItem(SSignFileDULItem& item, const CString& path);
    bool PostFile(varnoke::TransferStep step, const CString& path);
    enum EPostResult { kPosted, kNoRoom, kNobodyThere };
    bool Post(varnoke::TransferStep step, BSTR text);
    EPostResult TryPost(varnoke::TransferStep step, BSTR text);
    bool IsClosed();
    void TakeBackMessages();

    const varnoke::TransferVariant& m_variant;
    SSignFileDUL* m_list = nullptr; // weak
    HWND m_window = nullptr;        // weak; not touched once closed
    base::KernelHandle m_thread;
    unsigned m_threadId = 0;
    SRWLOCK m_lock = SRWLOCK_INIT;    // a post and closing exclude each other
    bool m_closed = false;            // under m_lock
    LONG m_posted = 0;                // under m_lock; messages not yet handled
    base::KernelHandle m_closedEvent; // ends a wait for the window
};
