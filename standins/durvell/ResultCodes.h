// What the functions of this Durvell.dll return.
#pragma once

namespace durvell {

enum Result : int {
    ResultOk = 0,
    ResultNoVault = 1,       // no vault folder is set, or it does not exist
    ResultBadArgument = 2,   // a null or empty path, or a null buffer
    ResultRefusedName = 3,   // a remote name or object type that could leave the vault
    ResultNotFound = 4,      // the server file, local file, object type or session does not exist
    ResultFileError = 5,     // a file could not be read, written or replaced
    ResultBadFilter = 6,     // the search filter is not well formed, or asks for something unknown
    ResultBadObjectFile = 7, // the vault's object file can't be read
    ResultFault = 8,         // failed because the fault plan says so
    ResultInternal = 9       // an exception, such as lack of memory
};

} // namespace durvell
