// The automation object of the drawing that the host has open.
#pragma once

#include <afxwin.h>
#include <oleauto.h>
#include <comdef.h>

namespace host {

_COM_SMARTPTR_TYPEDEF(IDispatch, __uuidof(IDispatch));

/// What the signing operations take as the host's open document. It answers "FullName" and "Name", as drawing
/// programs' documents do. Counted as COM objects are; Make() gives the only reference.
class DrawingDocument : public IDispatch {
public:
    /// `path` is the full path of the open drawing.
    static IDispatchPtr Make(const CString& path);

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

private:
    explicit DrawingDocument(const CString& path) : m_path(path) {}
    virtual ~DrawingDocument() = default;

    LONG m_references = 1;
    CString m_path;
};

} // namespace host
