// Stands before libstdc++'s file of this name: takes it over, but keeps the platform's own printf family.
#include_next <bits/os_defines.h>
// The replacement family lives in a library that fits mingw-w64's own long double only.
#undef __USE_MINGW_ANSI_STDIO
#define __USE_MINGW_ANSI_STDIO 0
