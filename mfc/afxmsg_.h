// The message-map macros: each line of a map becomes a table entry with a function of the exact signature.
#pragma once

#include "win/CmdTarget.h"

// Control notifications sent back to the control itself are the same message moved up by this base.
#define WM_REFLECT_BASE 0xBC00

#define CN_COMMAND 0

// Handlers' signatures, with the numbers that MFC gives them: result, then w(param), l(param), i(nt) or
// s(tructure).
enum AfxSig {
    AfxSig_end = 0,
    AfxSig_l_w_l = 14,
    AfxSig_v_v_v = 19,
    AfxSig_v_w_v = 21,
    AfxSig_v_i_s = 47,
    AfxSigCmd_v = 58,
};

// The handler must have exactly that signature.
#define AFX_MESSAGE(message, sig, signature, memberFxn)                                                      \
    {message, 0, 0, 0, sig, reinterpret_cast<AFX_PMSG>(static_cast<signature>(memberFxn))},

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                      \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                 \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                                      \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

#define ON_COMMAND(id, memberFxn)                                                                            \
    {WM_COMMAND, CN_COMMAND, (WORD)id, (WORD)id, AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    {WM_COMMAND, (WORD)wNotifyCode, (WORD)id, (WORD)id, AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    {WM_COMMAND + WM_REFLECT_BASE, (WORD)wNotifyCode, 0, 0, AfxSigCmd_v, static_cast<AFX_PMSG>(memberFxn)},
#define ON_MESSAGE(message, memberFxn)                                                                       \
    AFX_MESSAGE(message, AfxSig_l_w_l, LRESULT (CWnd::*)(WPARAM, LPARAM), memberFxn)

#define ON_WM_DESTROY() AFX_MESSAGE(WM_DESTROY, AfxSig_v_v_v, void (CWnd::*)(), &ThisClass::OnDestroy)
#define ON_WM_NCDESTROY() AFX_MESSAGE(WM_NCDESTROY, AfxSig_v_v_v, void (CWnd::*)(), &ThisClass::OnNcDestroy)
#define ON_WM_PAINT() AFX_MESSAGE(WM_PAINT, AfxSig_v_v_v, void (CWnd::*)(), &ThisClass::OnPaint)
#define ON_WM_TIMER() AFX_MESSAGE(WM_TIMER, AfxSig_v_w_v, void (CWnd::*)(UINT_PTR), &ThisClass::OnTimer)
#define ON_WM_DRAWITEM()                                                                                     \
    AFX_MESSAGE(WM_DRAWITEM, AfxSig_v_i_s, void (CWnd::*)(int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_MESSAGE(WM_MEASUREITEM, AfxSig_v_i_s, void (CWnd::*)(int, LPMEASUREITEMSTRUCT),                      \
                &ThisClass::OnMeasureItem)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
