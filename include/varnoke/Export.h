// Marks what Varnoke.dll exports: exported while the library itself is built, imported by everybody else.
#pragma once

#if defined(Varnoke_EXPORTS)
#define VARNOKE_API __declspec(dllexport)
#else
#define VARNOKE_API __declspec(dllimport)
#endif

#ifdef _MSC_VER
// Hosts call exported members only; bases and fields of exported classes stay the library's own business.
#pragma warning(disable : 4251 4275)
#endif
