// The folder that plays the server.
#pragma once

#include <string>

#include "standins/durvell/ResultCodes.h"

namespace durvell {

// files\          server files by remote name
// objects\X.xml   objects of the type X
// signlog\        sign records named by time and number (20261122-101500-0001.xml): sorted by arrival
// session.ini     [Session] UserName=, Password=, Server=: the login that is shared with the library
// journal.log     one line per call
// Durvell.ini     [Fault], see FaultPlan
// Subfolders are made when something is stored in them; the vault's own folder must exist.
class Vault {
public:
    // The folder that DURVELL_VAULT names, else [Server] Vault= in Durvell.ini beside the DLL.
    Vault();

    const std::wstring& Folder() const { return m_folder; }
    bool Exists() const;
    std::wstring JournalFile() const;

    // The target appears, or is replaced, only once the whole file is there.
    Result Download(const std::wstring& localPath, const std::wstring& remoteName) const;
    Result Upload(const std::wstring& localPath, const std::wstring& remoteName) const;

    // The file of an object type; a refused or missing one gives the result.
    Result FindObjectFile(const std::wstring& objectType, std::wstring* path) const;

    // Stores a sign record and writes the server's answer, root/result with "code" and "entry" attributes,
    // into the work file. A record whose answer can't be written stays stored.
    Result SaveRecord(const std::wstring& recordFile, const std::wstring& workFile) const;

    // Each buffer takes 1024 characters with the terminator; longer values are cut. Nothing is written on
    // failure.
    Result ShareInfo(wchar_t* userName, wchar_t* password, wchar_t* server) const;

private:
    std::wstring m_folder;
};

} // namespace durvell
