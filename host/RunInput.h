// What the commands that take a start-sign message have in common.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Options.h"
#include "host/Records.h"

namespace host {

/// Message, vault and work folder as given on the command line, paths absolute.
struct SRunInput {
    CString m_strMessage; ///< text of the message, not its path
    CString m_strVault;
    CString m_strWork;
};

/// The records of one message.
struct SMessageRecords {
    LoginInfoPtr m_pLogin;
    SignTypePtr m_pSteps;
    SignTypePtr m_pFiles;
};

/// "--message FILE --vault DIR --work DIR", followed by a command's own rules.
std::vector<SOptionRule> MessageRules(const std::vector<SOptionRule>& further);

/// Checks the folders, reads the message and names the vault to the server access library, which looks at it
/// when it is first called. Writes nothing. False after an error line.
bool LoadRunInput(const COptions& options, SRunInput& input);

/// The folder is there or was made; false after an error line.
bool PrepareWorkFolder(const SRunInput& input);

/// Hands the message to one of the library's start-sign operations; false when it was refused.
template <class Plm, class Operation>
bool StartMessage(Plm& plm, Operation operation, const CString& message, const CString& folder,
                  SMessageRecords& records) {
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
    const long started = (plm.*operation)(InText(message), InText(folder), &login, &steps, &files);
    records.m_pLogin.reset(login);
    records.m_pSteps.reset(steps);
    records.m_pFiles.reset(files);
    return started != 0;
}

} // namespace host
