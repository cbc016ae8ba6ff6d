// All that Varnoke.dll offers to a host: include this one.
//
// The host is a 64-bit Unicode program that uses MFC as a DLL with the release run-time library. It loads the
// library on its user-interface thread and calls everything there, in this order: construct CPLMInteract and
// CSignOpt, Initialize on each, their operations, Uninitialize on each, destroy them, unload the library.
//
// Common to all operations, unless one says otherwise:
// - The result is 1 for success and 0 for failure, whose cause Cmn_GetLastCause gives. No exception comes
// out.
// - Texts and folders handed in are null-terminated, borrowed for the call and not written to. Folders are
//   taken with and without a backslash at their end.
// - Records handed out through an out-pointer belong to the host, which gives them to the matching
//   Cmn_Release... function; on failure the out-pointer is null. Records handed in stay the host's.
// - CString results and texts in records hold the library's memory: it stays loaded until they are gone.
#pragma once

#include "varnoke/Cause.h"
#include "varnoke/PLMInteract.h"
#include "varnoke/SignOpt.h"
