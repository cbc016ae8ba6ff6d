// What the framework keeps per thread.
#include "win/ThreadWindows.h"

#include <utility>

namespace {

// A slot rather than a thread_local object: the record goes as soon as it holds nothing, so a thread that
// ends in another module leaves nothing behind.
class CThreadSlot {
public:
    CThreadSlot() : m_nIndex(TlsAlloc()) {
        if (m_nIndex == TLS_OUT_OF_INDEXES) AfxThrowMemoryException();
    }
    ~CThreadSlot() { TlsFree(m_nIndex); }

    CThreadWindows* Get() const { return static_cast<CThreadWindows*>(TlsGetValue(m_nIndex)); }
    void Set(CThreadWindows* pWindows) const { TlsSetValue(m_nIndex, pWindows); }

private:
    DWORD m_nIndex;
};

const CThreadSlot& Slot() {
    static const CThreadSlot slot;
    return slot;
}

// TlsGetValue clears the last error, which callers around a window object's use want to keep.
class CKeepLastError {
public:
    CKeepLastError() : m_dwError(GetLastError()) {}
    ~CKeepLastError() { SetLastError(m_dwError); }

private:
    DWORD m_dwError;
};

} // namespace

CThreadWindows* CThreadWindows::Find() {
    const CKeepLastError keep;
    return Slot().Get();
}

CThreadWindows& CThreadWindows::Get() {
    CThreadWindows* pWindows = Find();
    if (pWindows == nullptr) {
        pWindows = new CThreadWindows;
        Slot().Set(pWindows);
    }
    return *pWindows;
}

void CThreadWindows::DropIfUnused() {
    const CThreadWindows* p = Find();
    if (p != nullptr && p->m_windows.empty() && p->m_pCreating == nullptr && p->m_nMessageDepth == 0) Drop();
}

void CThreadWindows::Drop() {
    const CThreadWindows* pWindows = Find();
    Slot().Set(nullptr);
    delete pWindows;
}

CWnd* CThreadWindows::FindWindow(HWND hWnd) const {
    const auto found = m_windows.find(hWnd);
    return found != m_windows.end() ? found->second : nullptr;
}

CWnd* CThreadWindows::TakeCreated() {
    CThreadWindows* pWindows = Find();
    return pWindows != nullptr ? std::exchange(pWindows->m_pCreating, nullptr) : nullptr;
}

CMessageInProgress::CMessageInProgress(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
    : m_windows(CThreadWindows::Get()), m_previous(m_windows.m_message) {
    m_windows.m_message = MSG{hWnd, message, wParam, lParam, 0, {0, 0}};
    ++m_windows.m_nMessageDepth;
}

CMessageInProgress::~CMessageInProgress() {
    m_windows.m_message = m_previous;
    --m_windows.m_nMessageDepth;
    CThreadWindows::DropIfUnused();
}
