// Libraries that are loaded at the first call of one of their functions (linked with /DELAYLOAD, or with an
// import library of dlltool -y). They are looked for among the loaded modules, beside the DLL or program that
// calls, in the program's folder and the system's, and in the folders of PATH; never in the current folder,
// which may be anybody's. A library counts as there only when it has every function that is imported from it,
// and stays loaded.
#pragma once

#include <windows.h>

namespace base {

/// Raised by the call of a function whose library can't be had. The next call tries again.
struct MissingImport {
    const char* library;  ///< file name; lives as long as the caller's module
    const char* function; ///< the first imported function that the library lacks; null when it was not loaded
    DWORD error;          ///< of the system
};

} // namespace base
