// CCmdTarget and the tables through which messages reach member functions.
#pragma once

#include <afx.h>

#include <oaidl.h>

#define afx_msg

class AFX_SINGLE_INHERITANCE CCmdTarget;
class CPtrArray;
class CTypeLibCache;
struct AFX_CMDHANDLERINFO;
struct AFX_CONNECTIONMAP;
struct AFX_DISPMAP;
struct AFX_EVENTSINKMAP;
struct AFX_INTERFACEMAP;
struct AFX_OLECMDMAP;
struct IConnectionPoint;

// A handler, whatever its real signature; the entry says which it is.
typedef void (CCmdTarget::*AFX_PMSG)();

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;    // control notification code, or the message for a reflected one
    UINT nID;      // control id, 0 for window messages
    UINT nLastID;  // end of a range of ids
    UINT_PTR nSig; // AfxSig of the handler, AfxSig_end in the last entry
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)(); // null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
};

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                     \
    virtual const AFX_MSGMAP* GetMessageMap() const override;

// Fields and virtual functions keep the places that MFC gives them, used or not: derived classes and window
// pointers cross modules.
class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    virtual ~CCmdTarget();

    // Looks for a handler of a command or control notification; TRUE when one was called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);
    virtual void OnFinalRelease();
    virtual BOOL IsInvokeAllowed(DISPID dispid);
    virtual BOOL GetDispatchIID(IID* pIID);
    virtual UINT GetTypeInfoCount();
    virtual CTypeLibCache* GetTypeLibCache();
    virtual HRESULT GetTypeLib(LCID lcid, LPTYPELIB* ppTypeLib);

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
    virtual const AFX_OLECMDMAP* GetCommandMap() const;
    virtual const AFX_DISPMAP* GetDispatchMap() const;
    virtual const AFX_CONNECTIONMAP* GetConnectionMap() const;
    virtual const AFX_INTERFACEMAP* GetInterfaceMap() const;
    virtual const AFX_EVENTSINKMAP* GetEventSinkMap() const;

public:
    virtual BOOL OnCreateAggregates();
    virtual LPUNKNOWN GetInterfaceHook(const void* piid);

protected:
    virtual BOOL GetExtraConnectionPoints(CPtrArray* pConnPoints);
    virtual IConnectionPoint* GetConnectionHook(const IID& iid);

    // The entry for a message, code and id in this object's maps, most derived first; null when there is
    // none.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT nMessage, UINT nCode, UINT nID) const;
};
