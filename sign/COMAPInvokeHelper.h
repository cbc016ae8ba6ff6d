// Late-bound calls of the signing automation server.
#pragma once

#include <afxwin.h>
#include <comdef.h>
#include <comip.h>

/// Creates an automation server from its ProgID and calls its methods by name. Use on the thread that
/// initialised COM. Failures give 0 and show nothing.
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

    /// Looks a method up by its name (at most 1023 characters). Returns its identifier, always positive, or
    /// 0. The method stays selected until the next call of this function or of CreateFromProgID.
    long SelectMethod(const wchar_t* name);

    /// Calls the selected method. `arguments` stay the caller's, the method's last parameter first. `result`
    /// may be null; otherwise it must be empty and takes what the method returned. Returns 1 or 0.
    long Invoke(VARIANT* arguments, unsigned count, VARIANT* result);

private:
    _com_ptr_t<_com_IIID<IDispatch, &IID_IDispatch>> m_spServer;
    DISPID m_nMethod = 0; ///< 0: none selected
};

static_assert(sizeof(CCOMAPInvokeHelper) == 3 * sizeof(void*), "the vtable, the server and the method");
