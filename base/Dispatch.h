// IDispatch over a table of members, without a type library.
#pragma once

#include <windows.h>
#include <oleauto.h>
#include <comdef.h>
#include <string>
#include <vector>

#include "base/ComObject.h"

namespace base {

// A call's arguments in the member's own order, already of the types that the member wants.
using Arguments = std::vector<_variant_t>;

// One row per way of calling a member: a property that is read and written has two rows.
struct DispatchMember {
    DISPID id;
    const wchar_t* name;
    WORD flags;            // DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT
    const char* arguments; // one letter each: 'S' BSTR, 'I' 32-bit integer, 'D' double
    HRESULT (*call)(IDispatch* self, Arguments& arguments, VARIANT& result);
};

using DispatchTable = std::vector<DispatchMember>;

// IDispatch::GetIDsOfNames over the table; names are matched without regard to case.
HRESULT FindDispatchId(const DispatchTable& table, REFIID iid, LPOLESTR* names, UINT count, DISPID* ids);

// IDispatch::Invoke over the table: checks the member, the count and the types of the arguments, then calls
// it on self.
HRESULT CallMember(const DispatchTable& table, IDispatch* self, DISPID id, REFIID iid, WORD flags,
                   DISPPARAMS* parameters, VARIANT* result, UINT* badArgument);

// Text of an argument of type BSTR.
std::wstring BstrText(const _variant_t& argument);

// Result of a member.
HRESULT GiveLong(VARIANT& result, long value);
HRESULT GiveText(VARIANT& result, const std::wstring& text);

// Makes a table row's function out of a member function.
template <class Object, HRESULT (Object::*Method)(Arguments&, VARIANT&)>
HRESULT Forward(IDispatch* self, Arguments& arguments, VARIANT& result) {
    return (static_cast<Object*>(self)->*Method)(arguments, result);
}

// Base of an object with IDispatch and further interfaces.
template <class... Others>
class DispatchObject : public ComObject<IDispatch, Others...> {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return DISP_E_BADINDEX;
    }
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return GuardedCall([&] { return FindDispatchId(Members(), iid, names, count, ids); });
    }
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO*, UINT* badArgument) override {
        return GuardedCall(
            [&] { return CallMember(Members(), this, id, iid, flags, parameters, result, badArgument); });
    }

protected:
    virtual const DispatchTable& Members() const = 0;
};

} // namespace base
