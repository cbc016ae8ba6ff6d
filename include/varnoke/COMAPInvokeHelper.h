// Late-bound calls of the signing automation server.
#pragma once

#include <afxwin.h>
#include <comdef.h>
#include <comip.h>

#include <initializer_list>

#include "varnoke/Export.h"

/// Creates an automation server from its ProgID and calls its methods by name. Use on the thread that
/// initialised COM. Failures give 0 and show nothing.
///
/// The base of CSignOpt; hosts see it for its size only: its members are not exported.
class CCOMAPInvokeHelper {
public:
    CCOMAPInvokeHelper() = default;
    virtual ~CCOMAPInvokeHelper();
    CCOMAPInvokeHelper(const CCOMAPInvokeHelper&) = delete;
    CCOMAPInvokeHelper& operator=(const CCOMAPInvokeHelper&) = delete;

protected:
    /// Creates the in-process server; a server created before is released once the new object exists.
    /// Returns 1 when the server's dispatch interface is held, else 0.
    long CreateFromProgID(const wchar_t* progID);
    bool IsConnected() const { return m_server != nullptr; }

    /// Looks a method up by its name (at most 1023 characters). Returns its identifier, always positive, or
    /// 0. The method stays selected until the next call of this function or of CreateFromProgID.
    long SelectMethod(const wchar_t* name);

    /// Calls the selected method. `arguments` stay the caller's, the method's last parameter first. `result`
    /// may be null; otherwise it must be empty and takes what the method returned. Returns 1 or 0.
    long Invoke(VARIANT* arguments, unsigned count, VARIANT* result);

    /// Selects a method and calls it with parameters in the method's own order, the texts (borrowed; null is
    /// passed on as a null BSTR) before the numbers. Returns the 32-bit integer that the method returned, 0
    /// when it could not be called or returned none.
    long Call(const wchar_t* method, std::initializer_list<const wchar_t*> texts,
              std::initializer_list<double> numbers = {});

private:
    friend struct varnoke::InterfaceLayout;

    _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>> m_server;
    DISPID m_method = 0; ///< 0: none selected
};
