// Marks what Varnoke.dll exports: exported while the library itself is built, imported by everybody else.
#pragma once

#include "varnoke/Requirements.h"

#if defined(Varnoke_EXPORTS)
#define VARNOKE_API __declspec(dllexport)
#else
#define VARNOKE_API __declspec(dllimport)
#endif

namespace varnoke {
struct InterfaceLayout; // holds the order of the exported classes' fields while the library is built
}
