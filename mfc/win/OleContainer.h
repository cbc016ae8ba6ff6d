// Hosting of ActiveX controls in dialogs, by the system's own host windows.
#pragma once

#include <afxwin.h>

namespace OleContainer {

// Registers the class of the host windows, if this module has its control container enabled.
void Prepare();
// Puts a new control into an empty host window. False when there is no such control.
bool CreateControl(HWND hWndHost, LPCWSTR pszClass);
// The control in a host window, with a reference for the caller; null when there is none.
IUnknown* GetControl(HWND hWndHost);
// Lets the hosted control that has the focus use a key message first.
BOOL TranslateKey(HWND hWndDialog, MSG* pMsg);

} // namespace OleContainer
