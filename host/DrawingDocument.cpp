// The automation object of the open drawing.
#include <afxwin.h>

#include "host/DrawingDocument.h"

namespace host {

namespace {

constexpr const wchar_t* kMembers[] = {L"FullName", L"Name"};

} // namespace

IDispatchPtr DrawingDocument::Make(const CString& path) {
    return IDispatchPtr(new DrawingDocument(path), false);
}

STDMETHODIMP DrawingDocument::QueryInterface(REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object =
        iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) ? static_cast<IDispatch*>(this) : nullptr;
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) DrawingDocument::AddRef() {
    return static_cast<ULONG>(::InterlockedIncrement(&m_references));
}

STDMETHODIMP_(ULONG) DrawingDocument::Release() {
    const LONG left = ::InterlockedDecrement(&m_references);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
}

STDMETHODIMP DrawingDocument::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP DrawingDocument::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (!info) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP DrawingDocument::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count != 1) return E_INVALIDARG;
    ids[0] = DISPID_UNKNOWN;
    for (DISPID member = 0; member < static_cast<DISPID>(_countof(kMembers)); ++member) {
        if (_wcsicmp(names[0], kMembers[member]) == 0) ids[0] = member + 1;
    }
    return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

STDMETHODIMP DrawingDocument::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result,
                                     EXCEPINFO*, UINT*) {
    if (id < 1 || id > static_cast<DISPID>(_countof(kMembers)) || !(flags & DISPATCH_PROPERTYGET)) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (!result) return E_POINTER;
    const CString value = id == 1 ? m_path : m_path.Mid(m_path.ReverseFind(L'\\') + 1);
    result->vt = VT_BSTR;
    result->bstrVal = ::SysAllocString(value);
    return result->bstrVal ? S_OK : E_OUTOFMEMORY;
}

} // namespace host
