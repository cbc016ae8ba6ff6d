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

// The Microsoft compiler interface gives a handler's pointer one word only if it knows that early.
#ifdef VARNOKE_MSABI
#define AFX_SINGLE_INHERITANCE __single_inheritance
#else
#define AFX_SINGLE_INHERITANCE
#endif

// Release of the framework whose interface this is.
#define _MFC_VER 0x0E00

/// A false condition throws CInvalidArgException.
#define ENSURE(f) ((f) ? (void)0 : AfxThrowInvalidArgException())

[[noreturn]] void AFXAPI AfxThrowMemoryException();
[[noreturn]] void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] void AFXAPI AfxThrowOleException(SCODE sc);

/// As ENSURE, for strings and times: it throws COleException.
#define ATLENSURE(f) ((f) ? (void)0 : AfxThrowOleException(E_INVALIDARG))
