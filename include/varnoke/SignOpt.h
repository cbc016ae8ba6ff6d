// Signing operations on the drawing that the host has open.
#pragma once

#include <afxwin.h>

#include "varnoke/INIConfig.h"
#include "varnoke/Export.h"
#include "varnoke/SignRecords.h"
#include "varnoke/COMAPInvokeHelper.h"

/// Signs through the signing automation server. Operations give 0 on failure, otherwise 1 or, where the
/// server is called, the integer that its method returned. Nothing is thrown and no message is shown for a
/// failure. Texts are borrowed for the call. `document` is the host's open drawing; it must be given but is
/// not passed on, as the server works on the open drawing. Use on the host's user-interface thread.
class VARNOKE_API CSignOpt : public CCOMAPInvokeHelper {
public:
    CSignOpt();
    ~CSignOpt() override;
    CSignOpt(const CSignOpt&) = delete;
    CSignOpt& operator=(const CSignOpt&) = delete;

    /// Connects to the server that the settings name. `parent` owns the dialogs; it must outlive this object.
    long Initialize(CWnd* parent);
    /// Gives 1; the server is kept until destruction.
    long Uninitialize();

    /// Logs in to the server as the user's name there, with the address and port of the settings. The
    /// password may be empty but not null; user and server must be given.
    long Login(wchar_t* user, wchar_t* password, wchar_t* server);
    /// Forgets the login; the server is not told.
    long Logout();
    /// Calls the server's diagnostic method.
    long Test(wchar_t* text);

    /// Places a signature. The host has filled the sign texts and the placement of `info`.
    long Sign(IDispatch* document, SSignInfo* info);
    long SignForBackSign(IDispatch* document, SSignInfo* info);
    /// Deletes the signature with the first sign text, user name and role of `info`.
    long DeleteSignForBackSign(IDispatch* document, SSignInfo* info);
    /// Deletes all signatures, validates them, deletes the invalid ones. `text` is handed on to the server
    /// and must not be empty.
    long DeleteAllSignForBackSign(IDispatch* document, wchar_t* text);
    long SignatureValidateForBackSign(IDispatch* document, wchar_t* text);
    long ClearInvalidSignForBackSign(IDispatch* document, wchar_t* text);
    /// Checks its arguments only.
    long ClearInvalidSign(IDispatch* document, wchar_t* text);
    /// Deletes the signature that the three texts name; none may be empty.
    long CancelSign(IDispatch* document, wchar_t* first, wchar_t* second, wchar_t* third);
    /// Checks its arguments only; the second text is not looked at.
    long ExistSignature(IDispatch* document, wchar_t* first, wchar_t* second);
    /// Sets the out value to 0: no invalid signature.
    long HasInvalidSign(IDispatch* document, long* invalid);

    /// Fetches the shared login and copies its user name to `buffer`, which must hold 1024 characters.
    long GetSignUserName(wchar_t* buffer);

    /// Shows the sign dialog. On success `*out` is a new record that the host must give to
    /// Cmn_ReleaseSignInfo; otherwise it is null. A nonzero `value` lets the user choose the scope; `name` is
    /// the role.
    long GetSignInfo(wchar_t* document, long value, wchar_t* name, SSignInfo** out);
    /// The same from the settings and today's date, without a dialog.
    long GetSignInfoForBackSign(wchar_t* document, SSignInfo** out);
    /// Writes today's date in the configured style to `out`, without a length limit: the built-in styles need
    /// 14 characters with the terminator, a style of the settings at most twice its own length.
    long GetCancelSignDate(wchar_t* out);

    /// Shows the option dialog; 1 when the user confirmed it.
    long SetOption();

private:
    CINIConfig m_config;
    CWnd* m_parentWnd = nullptr; // weak
    CString m_plmUser;
    CString m_signUser;
    CString m_password;
    CString m_serverAddress;
    CString m_serverPort;
};
