// IDispatch over a table of members, without a type library.
#include "base/Dispatch.h"

#include <cstring>

#include "base/Text.h"

namespace base {

namespace {

HRESULT CheckNamedArguments(const DISPPARAMS& parameters, WORD flags) {
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        const bool valueNamed =
            parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
        return valueNamed ? S_OK : DISP_E_PARAMNOTOPTIONAL;
    }
    return parameters.cNamedArgs == 0 ? S_OK : DISP_E_NONAMEDARGS;
}

HRESULT FindMember(const DispatchTable& table, DISPID id, WORD flags, UINT count,
                   const DispatchMember** found) {
    HRESULT failure = DISP_E_MEMBERNOTFOUND;
    for (const DispatchMember& member : table) {
        if (member.id != id || !(member.flags & flags)) continue;
        if (std::strlen(member.arguments) == count) {
            *found = &member;
            return S_OK;
        }
        failure = DISP_E_BADPARAMCOUNT;
    }
    return failure;
}

VARTYPE TypeOf(char letter) {
    return letter == 'S' ? VT_BSTR : letter == 'D' ? VT_R8 : VT_I4;
}

HRESULT ConvertArguments(const DispatchMember& member, const DISPPARAMS& parameters, Arguments& arguments,
                         UINT* badArgument) {
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        // Callers pass the last argument first.
        const UINT place = parameters.cArgs - 1 - i;
        VARIANT& given = parameters.rgvarg[place];
        HRESULT converted = DISP_E_PARAMNOTOPTIONAL;
        if (given.vt != VT_ERROR) {
            converted = ::VariantChangeType(&arguments[i], &given, 0, TypeOf(member.arguments[i]));
            if (converted == DISP_E_BADVARTYPE) converted = DISP_E_TYPEMISMATCH;
        }
        if (FAILED(converted)) {
            if (badArgument) *badArgument = place;
            return converted;
        }
    }
    return S_OK;
}

} // namespace

HRESULT FindDispatchId(const DispatchTable& table, REFIID iid, LPOLESTR* names, UINT count, DISPID* ids) {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!names || !ids || count == 0) return E_INVALIDARG;
    // Names after the first would be argument names, and the members' arguments have none.
    for (UINT i = 0; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    if (!names[0]) return E_INVALIDARG;
    for (const DispatchMember& member : table)
        if (SameText(member.name, names[0])) ids[0] = member.id;
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT CallMember(const DispatchTable& table, IDispatch* self, DISPID id, REFIID iid, WORD flags,
                   DISPPARAMS* parameters, VARIANT* result, UINT* badArgument) {
    if (result) ::VariantInit(result);
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!parameters) return E_INVALIDARG;
    const DispatchMember* member = nullptr;
    HRESULT status = FindMember(table, id, flags, parameters->cArgs, &member);
    if (SUCCEEDED(status)) status = CheckNamedArguments(*parameters, flags);
    if (FAILED(status)) return status;

    Arguments arguments(parameters->cArgs);
    status = ConvertArguments(*member, *parameters, arguments, badArgument);
    if (FAILED(status)) return status;
    _variant_t answer;
    status = member->call(self, arguments, answer);
    if (SUCCEEDED(status) && result) *result = answer.Detach();
    return status;
}

std::wstring BstrText(const _variant_t& argument) {
    return std::wstring(argument.bstrVal, ::SysStringLen(argument.bstrVal));
}

HRESULT GiveLong(VARIANT& result, long value) {
    result.vt = VT_I4;
    result.lVal = value;
    return S_OK;
}

HRESULT GiveText(VARIANT& result, const std::wstring& text) {
    result.bstrVal = ::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!result.bstrVal) return E_OUTOFMEMORY;
    result.vt = VT_BSTR;
    return S_OK;
}

} // namespace base
