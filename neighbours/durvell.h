// Interface of the server access library Durvell.dll, which holds the server connection and the
// logged-in session. Every function returns 0 for success.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Writes the server's file remoteName to localPath (a full path). The last two arguments are always 0.
int dvl_DownloadFile(const wchar_t* localPath, const wchar_t* remoteName, int reserved1, int reserved2);

/// Sends the local file (a full path) to the server under remoteName. The last two arguments are always 0.
int dvl_UploadFile(const wchar_t* localPath, const wchar_t* remoteName, int reserved1, int reserved2);

/// Writes the objects of a type that match the search filter (XML text) to resultFile, as
/// root/objs/type/obj/pro with "name" and "value" attributes. Called with reserved1, reserved4 and
/// reserved5 empty, reserved2 "-1", reserved3 "0".
int dvl_QueryObjs(const wchar_t* objectType, const wchar_t* reserved1, const wchar_t* reserved2,
                  const wchar_t* reserved3, const wchar_t* reserved4, const wchar_t* filterXml,
                  const wchar_t* reserved5, const wchar_t* resultFile);

/// Stores the local sign record on the server; workFile names a scratch file beside it.
int dvl_SaveToServer(const wchar_t* recordFile, const wchar_t* workFile);

/// Fills three buffers of 1024 characters each, zeroed by the caller, with the session's user name,
/// password and server address.
int dvl_GetShareInfo(wchar_t* userName, wchar_t* password, wchar_t* serverAddress);

#ifdef __cplusplus
}
#endif
