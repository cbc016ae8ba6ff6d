// CCmdTarget: the search through message maps.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget()
    : m_dwRef(1), m_pOuterUnknown(nullptr), m_xInnerUnknown(0), m_xDispatch{0},
      m_bResultExpected(TRUE), m_xConnPtContainer{0}, m_pModuleState(AfxGetModuleState()) {}

CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP messageMap = {nullptr, entries};
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindMessageEntry(UINT nMessage, UINT nCode, UINT nID) const {
    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != nullptr;
         pMap = pMap->pfnGetBaseMap != nullptr ? pMap->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nSig != AfxSig_end; ++pEntry) {
            if (pEntry->nMessage == nMessage && pEntry->nCode == nCode && pEntry->nID <= nID &&
                nID <= pEntry->nLastID)
                return pEntry;
        }
    }
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void*, AFX_CMDHANDLERINFO*) {
    // A reflected notification has the message it came with in the upper half.
    const UINT nMessage = HIWORD(nCode) != 0 ? HIWORD(nCode) : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* pEntry = FindMessageEntry(nMessage, LOWORD(nCode), nID);
    if (pEntry == nullptr) return FALSE;
    (this->*pEntry->pfn)();
    return TRUE;
}
