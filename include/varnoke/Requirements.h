// What a host must be built as. The records hold MFC's strings and lists, in the layout and with the memory
// of exactly one kind of MFC.
#pragma once

#if !defined(_WIN64) || (defined(_MSC_VER) && !defined(_M_X64))
#error Varnoke.dll is for 64-bit programs only: choose the platform x64.
#endif

#if !defined(_UNICODE) || !defined(UNICODE)
#error Varnoke.dll needs the Unicode character set: Project Properties > Advanced > Character Set > Use Unicode.
#endif

#if defined(_DEBUG)
#error Varnoke.dll shares memory with the release run-time library: compile with /MD and without _DEBUG.
#endif

#if defined(_MSC_VER) && !defined(_DLL)
#error Varnoke.dll needs the run-time library as a DLL: compile with /MD, not /MT.
#endif

#if defined(_MSC_VER) && !defined(_AFXDLL)
#error Varnoke.dll needs MFC as a DLL: Project Properties > Advanced > Use of MFC > Use MFC in a Shared DLL.
#endif
