// Late-bound calls of the signing automation server.
#include "sign/COMAPInvokeHelper.h"

#include <cwchar>

#include "module/Owned.h"

namespace {

constexpr size_t kNameSize = 1024; // of a method name, with its terminator

/// Takes what a failing method tells about itself; nobody reads it, but it is the caller's to free.
struct CExceptionInfo : EXCEPINFO {
    CExceptionInfo() : EXCEPINFO() {}
    ~CExceptionInfo() {
        const varnoke::OwnedBstr texts[] = {varnoke::OwnedBstr(bstrSource),
                                            varnoke::OwnedBstr(bstrDescription),
                                            varnoke::OwnedBstr(bstrHelpFile)};
    }
    CExceptionInfo(const CExceptionInfo&) = delete;
    CExceptionInfo& operator=(const CExceptionInfo&) = delete;
};

} // namespace

CCOMAPInvokeHelper::~CCOMAPInvokeHelper() = default;

long CCOMAPInvokeHelper::CreateFromProgID(const wchar_t* progID) {
    if (progID == nullptr || *progID == L'\0') {
        return 0;
    }
    CLSID clsid = {};
    if (FAILED(::CLSIDFromProgID(progID, &clsid))) {
        return 0;
    }
    _com_ptr_t<_com_IIID<IUnknown, &IID_IUnknown>> spObject;
    if (FAILED(::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                  reinterpret_cast<void**>(&spObject))) ||
        !spObject) {
        return 0;
    }
    m_nMethod = 0;
    // Taking the address gives the previous server back.
    if (FAILED(spObject->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&m_spServer)))) {
        m_spServer.Detach();
    }
    return m_spServer ? 1 : 0;
}

long CCOMAPInvokeHelper::SelectMethod(const wchar_t* name) {
    if (name == nullptr || *name == L'\0' || wcsnlen(name, kNameSize) == kNameSize || !m_spServer) {
        return 0;
    }
    m_nMethod = 0;
    wchar_t buffer[kNameSize] = {};
    wcscpy(buffer, name);
    LPOLESTR names[] = {buffer};
    DISPID method = 0;
    if (SUCCEEDED(m_spServer->GetIDsOfNames(IID_NULL, names, 1, ::GetUserDefaultLCID(), &method)) &&
        method > 0) {
        m_nMethod = method;
    }
    return m_nMethod;
}

long CCOMAPInvokeHelper::Invoke(VARIANT* arguments, unsigned count, VARIANT* result) {
    if (!m_spServer || m_nMethod < 1) {
        return 0;
    }
    DISPPARAMS parameters = {arguments, nullptr, count, 0};
    _variant_t returned;
    CExceptionInfo exception;
    UINT faultyArgument = 0;
    if (FAILED(m_spServer->Invoke(m_nMethod, IID_NULL, ::GetUserDefaultLCID(), DISPATCH_METHOD, &parameters,
                                  &returned, &exception, &faultyArgument))) {
        return 0;
    }
    if (result != nullptr) {
        *result = returned.Detach();
    }
    return 1;
}
