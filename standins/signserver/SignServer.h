// The signing automation server, without a drawing.
#pragma once

#include <string>

#include "base/Dispatch.h"

namespace signserver {

// Methods by name through IDispatch only; each returns VT_I4, 1 for success and 0 for failure:
//   Login(userName, password, serverAddress, serverPort)  fails without a user name
//   Sign(five texts, eight numbers)  places a signature: sign text, user and role are texts 1, 4 and 5
//   SignatureDelete(signText, userName, role)  fails when there is no such signature
//   DeleteAllSign(signText)  afterwards nothing carries that sign text
//   SignatureValidate(signText)  1 when a signature carries it
//   SignatureInvalidDelete(signText)  no signature here ever turns invalid, so none is deleted
//   Test(text)
// All but Login and Test fail before a successful Login of the same object.
//
// Each call is journaled to the file that SIGNSERVER_JOURNAL names, else to SignServer.log beside the DLL,
// with "***" in place of a password.
//
// SIGNSERVER_FAULT makes calls fail: "Sign:2" the second call of Sign, "Login" every Login; several with ";"
// between them. Calls are counted per process, from 1 again when the variable's text changes.
class SignServer final : public base::DispatchObject<> {
protected:
    const base::DispatchTable& Members() const override;

private:
    using Arguments = base::Arguments;

    HRESULT Login(Arguments& arguments, VARIANT& result);
    HRESULT Sign(Arguments& arguments, VARIANT& result);
    HRESULT SignatureDelete(Arguments& arguments, VARIANT& result);
    HRESULT DeleteAllSign(Arguments& arguments, VARIANT& result);
    HRESULT SignatureInvalidDelete(Arguments& arguments, VARIANT& result);
    HRESULT SignatureValidate(Arguments& arguments, VARIANT& result);
    HRESULT Test(Arguments& arguments, VARIANT& result);

    // Runs a method's work unless a fault is due, journals the call and gives its answer.
    template <class Work>
    HRESULT Run(const wchar_t* method, std::vector<std::wstring> journaled, VARIANT& result, Work work);

    bool m_loggedIn = false;
};

} // namespace signserver
