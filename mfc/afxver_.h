// Calling conventions, argument checks and platform headers that every framework header builds on.
#pragma once
#include <windows.h>
#include <tchar.h>
#include <wchar.h>
#include <stdarg.h>
#include <stdlib.h>
#include <stddef.h>
#include <new>

#define AFXAPI __stdcall
#define AFX_CDECL __cdecl

/// A false condition throws CInvalidArgException.
#define ENSURE(f) ((f) ? (void)0 : AfxThrowInvalidArgException())

[[noreturn]] void AFXAPI AfxThrowMemoryException();
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();
