// The worker never touches a control, nor its window once that is closed.
#include "ui/TransferWorker.h"

#include <process.h>
#include "base/ComApartment.h"
#include "base/ExclusiveLock.h"
#include "base/WholeFile.h"

using namespace varnoke;

namespace {

const UINT kMessageTextRoom = 1024;
const LONG kMostPosted = 128; // messages in the window's queue
const DWORD kNoRoomWait = 2;  // ms

// Null when there is no memory for the text.
OwnedBstr MessageText(const CString& strPath) {
    const UINT length = static_cast<UINT>(strPath.GetLength());
    const UINT room = length < kMessageTextRoom ? kMessageTextRoom : length;
    OwnedBstr text(::SysAllocStringLen(nullptr, room));
    if (!text) return text;
    memset(text.get(), 0, room * sizeof(wchar_t));
    memcpy(text.get(), strPath.GetString(), length * sizeof(wchar_t));
    return text;
}

} // namespace

CTransferWorker::CTransferWorker(const TransferVariant& variant) : m_variant(variant) {}

CTransferWorker::~CTransferWorker() {
    Close();
    Wait();
}

bool CTransferWorker::Start(SSignFileDUL* pList, HWND hWnd) {
    m_list = pList;
    m_hWnd = hWnd;
    m_closedEvent.reset(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!m_closedEvent) return false;
    m_thread.reset(reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, &ThreadMain, this, 0, &m_threadId)));
    return m_thread != nullptr;
}

void CTransferWorker::ReportTaken() {
    const ExclusiveLock lock(m_lock);
    --m_posted;
}

void CTransferWorker::Close() {
    {
        const ExclusiveLock lock(m_lock);
        if (m_closed) return;
        m_closed = true;
    }
    if (m_closedEvent) ::SetEvent(m_closedEvent.get());
    if (m_hWnd) TakeBackMessages();
}

void CTransferWorker::TakeBackMessages() {
    const UINT first = m_variant.firstMessage;
    const UINT last = first + kTransferStepCount - 1;
    bool quit = false;
    MSG msg = {};
    while (::PeekMessageW(&msg, m_hWnd, first, last, PM_REMOVE)) {
        // The request to quit passes every filter.
        if (msg.message == WM_QUIT) {
            quit = true;
            break;
        }
        if (msg.hwnd == m_hWnd) const OwnedBstr text(reinterpret_cast<BSTR>(msg.wParam));
    }
    if (quit) {
        TakeBackMessages();
        ::PostQuitMessage(static_cast<int>(msg.wParam));
    }
}

void CTransferWorker::Wait() {
    const HANDLE thread = m_thread.get();
    while (thread &&
           ::MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_SENDMESSAGE) != WAIT_OBJECT_0) {
        MSG msg = {};
        ::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    m_thread.reset();
}

unsigned __stdcall CTransferWorker::ThreadMain(void* pWorker) {
    const base::ComApartment apartment;
    return apartment.Result() == S_OK ? static_cast<CTransferWorker*>(pWorker)->Run() : 0;
}

unsigned CTransferWorker::Run() {
    if (!m_hWnd || !m_list || m_list->m_lstItem.GetCount() < 1) return 0;
    try {
        TransferList();
        Post(kRunEnded, nullptr);
        return 1;
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
    }
    Post(kRunInterrupted, nullptr);
    return 0;
}

void CTransferWorker::TransferList() {
    CString folder = m_list->m_strFolder;
    if (!folder.IsEmpty() && folder.Right(1) != L"\\") folder += L"\\";
    Post(kRunStarted, nullptr);
    for (POSITION pos = m_list->m_lstItem.GetHeadPosition(); pos && !IsClosed();) {
        SSignFileDULItem* item = m_list->m_lstItem.GetNext(pos);
        if (!item || item->m_strRemoteName.IsEmpty() || item->m_strLocalName.IsEmpty()) continue;
        if (!TransferItem(*item, folder + item->m_strLocalName)) break;
    }
}

// Returns false when the run cannot go on.
bool CTransferWorker::TransferItem(SSignFileDULItem& item, const CString& strPath) {
    if (m_variant.needsLocalFile && !base::OpenForReading(strPath)) return PostFile(kFileSkipped, strPath);
    if (!PostFile(kFileBegins, strPath)) return false;
    const bool done = m_variant.m_transfer(strPath, item.m_strRemoteName, 0, 0) == 0;
    item.m_nState = done ? 1 : 2;
    return PostFile(done ? kFileDone : kFileFailed, strPath);
}

// Returns false when there is no memory for the text or nobody to receive it.
bool CTransferWorker::PostFile(TransferStep step, const CString& strPath) {
    OwnedBstr text = MessageText(strPath);
    if (!text || !Post(step, text.get())) return false;
    text.release(); // the dialog's now
    return true;
}

// Waits for a window that lags behind, and while its message queue is full: a slow dialog loses no report.
bool CTransferWorker::Post(TransferStep step, BSTR text) {
    EPostResult result = TryPost(step, text);
    while (result == kNoRoom) {
        ::WaitForSingleObject(m_closedEvent.get(), kNoRoomWait);
        result = TryPost(step, text);
    }
    return result == kPosted;
}

CTransferWorker::EPostResult CTransferWorker::TryPost(TransferStep step, BSTR text) {
    const ExclusiveLock lock(m_lock);
    if (m_closed) return kNobodyThere;
    if (m_posted >= kMostPosted) return kNoRoom;
    const UINT message = m_variant.firstMessage + step;
    if (::PostMessageW(m_hWnd, message, reinterpret_cast<WPARAM>(text), 0)) {
        ++m_posted;
        return kPosted;
    }
    return ::IsWindow(m_hWnd) ? kNoRoom : kNobodyThere;
}

bool CTransferWorker::IsClosed() {
    const ExclusiveLock lock(m_lock);
    return m_closed;
}
