// CCmdTarget and the tables through which messages reach member functions.
#pragma once

#include <afx.h>

#include <type_traits>

#define afx_msg

class CCmdTarget;

// A message or command on its way through the maps.
struct AFX_MSGCALL {
    WPARAM wParam;
    LPARAM lParam;
    LRESULT lResult;
};

// Calls one handler with the arguments it was declared with.
typedef void (*AFX_PMSG)(CCmdTarget* pTarget, AFX_MSGCALL& call);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;   // control notification code, or the message for a reflected one
    UINT nID;     // control id, 0 for window messages
    UINT nLastID; // end of a range of ids
    AFX_PMSG pfn; // null in the last entry
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    virtual const AFX_MSGMAP* GetMessageMap() const override;

// Its fields keep the places that MFC gives them: derived classes and window pointers cross modules.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    virtual ~CCmdTarget();

    // Looks for a handler of a command or control notification; TRUE when one was called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, void* pHandlerInfo);

    long m_dwRef;
    LPUNKNOWN m_pOuterUnknown;
    DWORD_PTR m_xInnerUnknown;
    struct XDispatch {
        DWORD_PTR m_vtbl;
    } m_xDispatch;
    BOOL m_bResultExpected;
    struct XConnPtContainer {
        DWORD_PTR m_vtbl;
    } m_xConnPtContainer;
    void* m_pModuleState;

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // The entry for a message, code and id in this object's maps, most derived first; null when there is
    // none.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT nMessage, UINT nCode, UINT nID) const;
};

#ifdef VARNOKE_MSABI
static_assert(sizeof(CCmdTarget) == 0x40, "CCmdTarget has MFC's size");
#endif
