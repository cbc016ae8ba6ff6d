// CTransferWorker: the thread that transfers the documents of a list, one after the other.
#pragma once

#include <afxwin.h>
#include "base/Owned.h"
#include "varnoke/SignRecords.h"
#include "ui/TransferVariant.h"

/// Reports to its window by posted messages only. A message about a file carries its local path in wParam,
/// as a BSTR with room for at least 1024 characters, zero-filled; whoever handles the message frees it.
/// Use: one run per object. All members are for the window's thread; the window must call Close while it is
/// still there, and nobody may free the list before Wait has returned.
class CTransferWorker {
public:
    explicit CTransferWorker(const varnoke::TransferVariant& variant);
    ~CTransferWorker(); // closes and waits
    CTransferWorker(const CTransferWorker&) = delete;
    CTransferWorker& operator=(const CTransferWorker&) = delete;

    /// Starts the thread. The list is borrowed; the worker writes the state of its items.
    bool Start(SSignFileDUL* pList, HWND hWnd);
    /// To be called for each message that has been handled: the worker lets only so many lie in the queue, so
    /// that the window stays quick to answer.
    void ReportTaken();
    /// After the file in hand no further one is transferred and nothing more is posted; what was posted and
    /// not yet handled is taken back.
    void Close();
    /// Returns when the thread has ended; until then messages that other threads send are answered.
    void Wait();

private:
    static unsigned __stdcall ThreadMain(void* pWorker);
    unsigned Run();
    void TransferList();
    bool TransferItem(SSignFileDULItem& item, const CString& strPath);
    bool PostFile(varnoke::TransferStep step, const CString& strPath);
    enum EPostResult { kPosted, kNoRoom, kNobodyThere };
    bool Post(varnoke::TransferStep step, BSTR text);
    EPostResult TryPost(varnoke::TransferStep step, BSTR text);
    bool IsClosed();
    void TakeBackMessages();

    const varnoke::TransferVariant& m_variant;
    SSignFileDUL* m_list = nullptr; // weak
    HWND m_hWnd = nullptr;          // weak; not touched once closed
    varnoke::KernelHandle m_thread;
    unsigned m_threadId = 0;
    SRWLOCK m_lock = SRWLOCK_INIT;       // a post and closing exclude each other
    bool m_closed = false;               // under m_lock
    LONG m_posted = 0;                   // under m_lock; messages not yet handled
    varnoke::KernelHandle m_closedEvent; // ends a wait for the window
};
