// CSignOpt: signing operations on the drawing that the host has open.
#pragma once

#include <afxwin.h>

#include "varnoke/COMAPInvokeHelper.h"
#include "varnoke/Export.h"
#include "varnoke/INIConfig.h"
#include "varnoke/SignRecords.h"

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251 4275) // base and fields are the library's own business
#endif

/// Signs through the signing automation server, on the host's user-interface thread. Operations give 0 on
/// failure, otherwise 1 or, where the server is called, the 32-bit integer that its method returned. Nothing
/// is thrown and no message is shown for a failure. Texts are borrowed for the call and must be neither null
/// nor empty, unless stated otherwise. `document` is the host's open drawing; it must not be null but is not
/// passed on, as the server works on the open drawing.
class VARNOKE_API CSignOpt : public CCOMAPInvokeHelper {
public:
    CSignOpt();
    ~CSignOpt() override;
    CSignOpt(const CSignOpt&) = delete;
    CSignOpt& operator=(const CSignOpt&) = delete;

    /// Creates the server that the settings name (in-process). `parent` owns the dialogs, may be null, and
    /// must outlive this object. Returns 1, or 0 when there is no such server.
    long Initialize(CWnd* parent);
    /// Gives 1; the server is kept until destruction.
    long Uninitialize();

    /// Logs in to the server as the user's name there ([SignServer] of the settings), with the settings'
    /// address and port; `serverAddress` is used only if they gave none, which their defaults prevent.
    /// `password` may be empty but not null.
    long Login(wchar_t* plmUser, wchar_t* password, wchar_t* serverAddress);
    /// Forgets the login, the password included; the server is not told. Gives 1.
    long Logout();
    /// Calls the server's diagnostic method "Test". `text` may be null.
    long Test(wchar_t* text);

    /// Places a signature. The host has filled the sign texts and the placement of `info`, which stays its
    /// own. Both do the same.
    long Sign(IDispatch* document, SSignInfo* info);
    long SignForBackSign(IDispatch* document, SSignInfo* info);
    /// Deletes the signature with the first sign text, user name and role of `info`.
    long DeleteSignForBackSign(IDispatch* document, SSignInfo* info);
    /// Deletes all signatures, validates them, deletes the invalid ones. `text` is handed on to the server.
    long DeleteAllSignForBackSign(IDispatch* document, wchar_t* text);
    long SignatureValidateForBackSign(IDispatch* document, wchar_t* text);
    long ClearInvalidSignForBackSign(IDispatch* document, wchar_t* text);
    /// Checks its arguments only.
    long ClearInvalidSign(IDispatch* document, wchar_t* text);
    /// Deletes the signature with this first sign text, user name and role.
    long CancelSign(IDispatch* document, wchar_t* firstText, wchar_t* userName, wchar_t* role);
    /// Checks its arguments only; `userName` is not looked at and may be null.
    long ExistSignature(IDispatch* document, wchar_t* firstText, wchar_t* userName);
    /// Sets `*invalidCount` to 0: no invalid signature.
    long HasInvalidSign(IDispatch* document, long* invalidCount);

    /// Fetches the shared login from the server access library and copies its user name, at most 1023
    /// characters, to `userName`, which must hold 1024.
    long GetSignUserName(wchar_t* userName);

    /// Shows the sign dialog. `documentPath` must be given but is not used. A nonzero `scopeSelectable` lets
    /// the user choose the scope. Returns 1 when the user confirmed: `*info` is then a new record for
    /// Cmn_ReleaseSignInfo, otherwise null.
    long GetSignInfo(wchar_t* documentPath, long scopeSelectable, wchar_t* role, SSignInfo** info);
    /// The same from the settings and today's date, without a dialog; user name, role, scope and locations
    /// stay empty or 0.
    long GetSignInfoForBackSign(wchar_t* documentPath, SSignInfo** info);
    /// Writes today's date in the configured style, if that names year, month and day, else as "YYYY-MM-DD".
    /// The length is not limited: the built-in styles need 14 characters with the terminator, a style of
    /// the settings at most twice its own length.
    long GetCancelSignDate(wchar_t* date);

    /// Shows the option dialog; 1 when the user confirmed it, whether or not the settings file could
    /// be written.
    long SetOption();

    /// Whether the connected server knows every method that the settings name. Returns 1; otherwise 0, with
    /// the configured name of the first that it lacks in `missing`, which must hold 1024 characters: empty
    /// when no server is connected. Calls nothing on the server.
    long CheckMethods(wchar_t* missing);

private:
    friend struct varnoke::InterfaceLayout;

    CINIConfig m_config;
    CWnd* m_parentWnd = nullptr; // weak
    CString m_plmUser;
    CString m_signUser;
    CString m_password;
    CString m_serverAddress;
    CString m_serverPort;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
