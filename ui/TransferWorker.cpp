#include "ui/TransferWorker.h"

#include <process.h>
#include "base/ComApartment.h"
#include "base/ExclusiveLock.h"
#include "base/WholeFile.h"
#include "module/TransferFiles.h"

using namespace varnoke;

namespace {

const UINT kMessageTextRoom = 1024;
const LONG kMostPosted = 128; // messages in the window's queue
const DWORD kNoRoomWait = 2;  // ms

// Null when there is no memory for the text.
base::OwnedBstr MessageText(const CString& path) {
    const UINT length = static_cast<UINT>(path.GetLength());
    const UINT room = length < kMessageTextRoom ? kMessageTextRoom : length;
    base::OwnedBstr text(::SysAllocStringLen(nullptr, room));
    if (!text) return text;
    memset(text.get(), 0, room * sizeof(wchar_t));
    memcpy(text.get(), path.GetString(), length * sizeof(wchar_t));
    return text;
}

} // namespace

CTransferWorker::CTransferWorker(const TransferVariant& variant) : m_variant(variant) {}

CTransferWorker::~CTransferWorker() {
    Close();
    Wait();
}

bool CTransferWorker::Start(SSignFileDUL* list, HWND window) {
    m_list = list;
    m_window = window;
    m_closedEvent.reset(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    if (!m_closedEvent) return false;
    m_thread.reset(reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, &ThreadMain, this, 0, &m_threadId)));
    return m_thread != nullptr;
}

void CTransferWorker::ReportTaken() {
    const base::ExclusiveLock lock(m_lock);
    --m_posted;
}

void CTransferWorker::Close() {
    {
        const base::ExclusiveLock lock(m_lock);
        if (m_closed) return;
        m_closed = true;
    }
    if (m_closedEvent) ::SetEvent(m_closedEvent.get());
    if (m_window) TakeBackMessages();
}

void CTransferWorker::TakeBackMessages() {
    const UINT first = m_variant.firstMessage;
    const UINT last = first + kTransferStepCount - 1;
    bool quit = false;
    MSG msg = {};
    while (::PeekMessageW(&msg, m_window, first, last, PM_REMOVE)) {
        // The request to quit passes every filter.
        if (msg.message == WM_QUIT) {
            quit = true;
            break;
        }
        if (msg.hwnd == m_window) const base::OwnedBstr text(reinterpret_cast<BSTR>(msg.wParam));
    }
    if (quit) {
        TakeBackMessages();
        ::PostQuitMessage(static_cast<int>(msg.wParam));
    }
}

bool CTransferWorker::HasEnded() const {
    return !m_thread || ::WaitForSingleObject(m_thread.get(), 0) == WAIT_OBJECT_0;
}

void CTransferWorker::Wait() {
    const HANDLE thread = m_thread.get();
    const DWORD served = QS_POSTMESSAGE | QS_SENDMESSAGE;
    MSG quit = {};
    while (thread && ::MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, served) != WAIT_OBJECT_0) {
        MSG msg = {};
        while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE)) {
            if (msg.message == WM_QUIT)
                quit = msg;
            else
                ::DispatchMessageW(&msg);
        }
    }
    m_thread.reset();
    if (quit.message == WM_QUIT) ::PostQuitMessage(static_cast<int>(quit.wParam));
}

unsigned __stdcall CTransferWorker::ThreadMain(void* worker) {
    const base::ComApartment apartment;
    return apartment.Result() == S_OK ? static_cast<CTransferWorker*>(worker)->Run() : 0;
}

unsigned CTransferWorker::Run() {
    if (!m_window || !m_list || m_list->m_lstItem.GetCount() < 1) return 0;
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
    Post(kRunStarted, nullptr);
    ForEachFile(*m_list, [this](SSignFileDULItem& item, const CString& path) {
        return !IsClosed() && TransferItem(item, path);
    });
}

// Returns false when the run cannot go on.
bool CTransferWorker::TransferItem(SSignFileDULItem& item, const CString& path) {
    if (m_variant.needsLocalFile && !base::OpenForReading(path)) return PostFile(kFileSkipped, path);
    if (!PostFile(kFileBegins, path)) return false;
    const bool done = m_variant.transfer(path, item.m_strRemoteName, 0, 0) == 0;
    item.m_nState = done ? 1 : 2;
    return PostFile(done ? kFileDone : kFileFailed, path);
}

// Returns false when there is no memory for the text or nobody to receive it.
bool CTransferWorker::PostFile(TransferStep step, const CString& path) {
    base::OwnedBstr text = MessageText(path);
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
    const base::ExclusiveLock lock(m_lock);
    if (m_closed) return kNobodyThere;
    if (m_posted >= kMostPosted) return kNoRoom;
    const UINT message = m_variant.firstMessage + step;
    if (::PostMessageW(m_window, message, reinterpret_cast<WPARAM>(text), 0)) {
        ++m_posted;
        return kPosted;
    }
    return ::IsWindow(m_window) ? kNoRoom : kNobodyThere;
}

bool CTransferWorker::IsClosed() {
    const base::ExclusiveLock lock(m_lock);
    return m_closed;
}
