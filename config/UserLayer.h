// The user's own layer of settings, above the administrator's.
#pragma once

#include <afxwin.h>

namespace varnoke {

/// The user's file, Varnoke\Varnoke.ini in the user's application data, when the administrator's file asks
/// for it
/// ([Settings] UserLayer=1); empty otherwise. It need not exist.
CString UserSettingsPath(const CString& adminPath);

/// The file that holds the user's choice of a value: the user's where it has one, else the administrator's.
CString ChoicePath(const CString& adminPath, const wchar_t* section, const wchar_t* key);

/// Puts a choice of the user into the user's file, which is made when it is missing, or into the
/// administrator's when there is no user's layer. False when it could not be stored.
bool StoreChoice(const CString& adminPath, const wchar_t* section, const wchar_t* key, const CString& value);

} // namespace varnoke
