// Definitions shared by resource scripts and sources. Resource compilers also get the system's ids and
// styles.
#pragma once

#ifdef RC_INVOKED
#include <winres.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif
