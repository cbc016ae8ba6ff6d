// CWnd: calling an ActiveX control's members by identifier.
#include <afxdisp.h>
#include <comdef.h>

#include "win/OleContainer.h"

#include <vector>

_COM_SMARTPTR_TYPEDEF(IUnknown, __uuidof(IUnknown));
_COM_SMARTPTR_TYPEDEF(IDispatch, __uuidof(IDispatch));

namespace {

_variant_t NextArgument(BYTE type, va_list& args) {
    switch (type) {
    case VT_I4:
        return _variant_t(va_arg(args, long));
    case VT_BSTR:
        return _variant_t(va_arg(args, LPCWSTR));
    default:
        AfxThrowOleException(E_INVALIDARG);
    }
}

// A member's arguments in the order that IDispatch wants: the last one first.
std::vector<_variant_t> CollectArguments(const BYTE* pbTypes, va_list& args) {
    const size_t nCount = pbTypes != nullptr ? strlen(reinterpret_cast<const char*>(pbTypes)) : 0;
    std::vector<_variant_t> values(nCount);
    for (size_t n = 0; n < nCount; ++n)
        values[nCount - 1 - n] = NextArgument(pbTypes[n], args);
    return values;
}

[[noreturn]] void ThrowServerError(EXCEPINFO& info) {
    if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
    const _bstr_t description(info.bstrDescription, false), source(info.bstrSource, false),
        helpFile(info.bstrHelpFile, false);
    auto* pException = new COleDispatchException(description, info.dwHelpContext, info.wCode);
    pException->m_strSource = static_cast<LPCWSTR>(source);
    pException->m_strHelpFile = static_cast<LPCWSTR>(helpFile);
    pException->m_scError = info.scode;
    throw pException;
}

// Hands the result over as the caller's type.
void StoreResult(_variant_t& result, VARTYPE vt, void* pvRet) {
    const HRESULT hr = ::VariantChangeType(&result, &result, 0, vt);
    if (FAILED(hr)) AfxThrowOleException(hr);
    switch (vt) {
    case VT_I4:
        *static_cast<long*>(pvRet) = result.lVal;
        break;
    case VT_BSTR:
        *static_cast<CString*>(pvRet) = result.bstrVal;
        break;
    default:
        AfxThrowOleException(E_INVALIDARG);
    }
}

} // namespace

void CWnd::InvokeHelperV(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet, const BYTE* pbParamInfo,
                         va_list argList) {
    IDispatchPtr dispatch;
    const IUnknownPtr control(OleContainer::GetControl(m_hWnd), false);
    if (control == nullptr) AfxThrowOleException(OLE_E_BLANK);
    HRESULT hr = control->QueryInterface(IID_PPV_ARGS(&dispatch));
    if (FAILED(hr)) AfxThrowOleException(hr);

    std::vector<_variant_t> arguments = CollectArguments(pbParamInfo, argList);
    DISPID dispidPut = DISPID_PROPERTYPUT;
    const bool bPut = (wFlags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters = {arguments.data(), bPut ? &dispidPut : nullptr,
                             static_cast<UINT>(arguments.size()), bPut ? 1u : 0u};
    _variant_t result;
    EXCEPINFO info = {};
    hr = dispatch->Invoke(dwDispID, IID_NULL, LOCALE_USER_DEFAULT, wFlags, &parameters,
                          vtRet != VT_EMPTY ? &result : nullptr, &info, nullptr);
    if (hr == DISP_E_EXCEPTION) ThrowServerError(info);
    if (FAILED(hr)) AfxThrowOleException(hr);
    if (vtRet != VT_EMPTY) StoreResult(result, vtRet, pvRet);
}

void AFX_CDECL CWnd::InvokeHelper(DISPID dwDispID, WORD wFlags, VARTYPE vtRet, void* pvRet,
                                  const BYTE* pbParamInfo, ...) {
    va_list argList;
    va_start(argList, pbParamInfo);
    InvokeHelperV(dwDispID, wFlags, vtRet, pvRet, pbParamInfo, argList);
    va_end(argList);
}

void AFX_CDECL CWnd::SetProperty(DISPID dwDispID, VARTYPE vtProp, ...) {
    const BYTE types[] = {static_cast<BYTE>(vtProp), 0};
    va_list argList;
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wvarargs" // a short last parameter takes a whole slot here
#endif
    va_start(argList, vtProp);
#ifdef __clang__
#pragma clang diagnostic pop
#endif
    InvokeHelperV(dwDispID, DISPATCH_PROPERTYPUT, VT_EMPTY, nullptr, types, argList);
    va_end(argList);
}

void CWnd::GetProperty(DISPID dwDispID, VARTYPE vtProp, void* pvProp) const {
    const_cast<CWnd*>(this)->InvokeHelper(dwDispID, DISPATCH_PROPERTYGET, vtProp, pvProp, nullptr);
}
