// The message-map macros: each line of a map becomes a table entry with a function of the exact signature.
#pragma once

#include "win/CmdTarget.h"

// Control notifications sent back to the control itself are the same message moved up by this base.
#define WM_REFLECT_BASE 0xBC00

#define CN_COMMAND 0

template <class TMember>
struct AfxHandlerSignature;
template <class TClass, class TResult, class... TArgs>
struct AfxHandlerSignature<TResult (TClass::*)(TArgs...)> {
    typedef TResult Type(TArgs...);
};

template <class TTarget, auto Handler, class TSignature>
TTarget* AfxHandlerTarget(CCmdTarget* pTarget) {
    static_assert(std::is_same_v<typename AfxHandlerSignature<decltype(Handler)>::Type, TSignature>,
                  "the handler's signature does not fit its message-map macro");
    return static_cast<TTarget*>(pTarget);
}

template <class TTarget, auto Handler>
void AfxCallPlain(CCmdTarget* pTarget, AFX_MSGCALL&) {
    (AfxHandlerTarget<TTarget, Handler, void()>(pTarget)->*Handler)();
}

template <class TTarget, auto Handler>
void AfxCallMessage(CCmdTarget* pTarget, AFX_MSGCALL& call) {
    call.lResult = (AfxHandlerTarget<TTarget, Handler, LRESULT(WPARAM, LPARAM)>(pTarget)->*Handler)(
        call.wParam, call.lParam);
}

template <class TTarget, auto Handler>
void AfxCallTimer(CCmdTarget* pTarget, AFX_MSGCALL& call) {
    (AfxHandlerTarget<TTarget, Handler, void(UINT_PTR)>(pTarget)->*Handler)(call.wParam);
}

template <class TTarget, auto Handler>
void AfxCallDrawItem(CCmdTarget* pTarget, AFX_MSGCALL& call) {
    call.lResult = TRUE;
    (AfxHandlerTarget<TTarget, Handler, void(int, LPDRAWITEMSTRUCT)>(pTarget)->*Handler)(
        static_cast<int>(call.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(call.lParam));
}

template <class TTarget, auto Handler>
void AfxCallMeasureItem(CCmdTarget* pTarget, AFX_MSGCALL& call) {
    call.lResult = TRUE;
    (AfxHandlerTarget<TTarget, Handler, void(int, LPMEASUREITEMSTRUCT)>(pTarget)->*Handler)(
        static_cast<int>(call.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(call.lParam));
}

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                      \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                 \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, nullptr }                                                                                  \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

#define ON_COMMAND(id, memberFxn)                                                                            \
    {WM_COMMAND, CN_COMMAND, (WORD)id, (WORD)id, &AfxCallPlain<ThisClass, memberFxn>},
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    {WM_COMMAND, (WORD)wNotifyCode, (WORD)id, (WORD)id, &AfxCallPlain<ThisClass, memberFxn>},
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    {WM_REFLECT_BASE + WM_COMMAND, (WORD)wNotifyCode, 0, 0, &AfxCallPlain<ThisClass, memberFxn>},
#define ON_MESSAGE(message, memberFxn) {message, 0, 0, 0, &AfxCallMessage<ThisClass, memberFxn>},

#define ON_WM_DESTROY() {WM_DESTROY, 0, 0, 0, &AfxCallPlain<ThisClass, &ThisClass::OnDestroy>},
#define ON_WM_NCDESTROY() {WM_NCDESTROY, 0, 0, 0, &AfxCallPlain<ThisClass, &ThisClass::OnNcDestroy>},
#define ON_WM_PAINT() {WM_PAINT, 0, 0, 0, &AfxCallPlain<ThisClass, &ThisClass::OnPaint>},
#define ON_WM_TIMER() {WM_TIMER, 0, 0, 0, &AfxCallTimer<ThisClass, &ThisClass::OnTimer>},
#define ON_WM_DRAWITEM() {WM_DRAWITEM, 0, 0, 0, &AfxCallDrawItem<ThisClass, &ThisClass::OnDrawItem>},
#define ON_WM_MEASUREITEM()                                                                                  \
    {WM_MEASUREITEM, 0, 0, 0, &AfxCallMeasureItem<ThisClass, &ThisClass::OnMeasureItem>},

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
