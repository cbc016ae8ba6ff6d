// What the functions of this Durvell.dll return.
#pragma once

namespace durvell {

enum Result : int {
    kResultOk = 0,
    kResultNoVault = 1,       // no vault folder is set, or it does not exist
    kResultBadArgument = 2,   // a null or empty path, or a null buffer
    kResultRefusedName = 3,   // a remote name or object type that could leave the vault
    kResultNotFound = 4,      // the server file, local file, object type or session does not exist
    kResultFileError = 5,     // a file could not be read, written or replaced
    kResultBadFilter = 6,     // the search filter is not well formed, or asks for something unknown
    kResultBadObjectFile = 7, // the vault's object file can't be read
    kResultFault = 8,         // failed because the fault plan says so
    kResultInternal = 9       // an exception, such as lack of memory
};

} // namespace durvell
