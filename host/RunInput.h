// What the commands that take a start-sign message have in common.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/Options.h"
#include "host/Records.h"
#include "varnoke/PLMInteract.h"

namespace host {

/// Message, vault and work folder as given on the command line, paths absolute.
struct RunInput {
    CString message; ///< text of the message, not its path
    CString vault;   ///< folder of the folder server; empty to use the server access library as it is set up
    CString work;
};

/// The records of one message.
struct MessageRecords {
    LoginInfoPtr login;
    SignTypePtr steps;
    SignTypePtr files;
};

/// "--message FILE [--vault DIR] --work DIR", followed by a command's own rules.
std::vector<OptionRule> MessageRules(const std::vector<OptionRule>& further);

/// Checks the folders, reads the message and names the vault to the server access library, which looks at it
/// when it is first called. Writes nothing. False after an error line.
bool LoadRunInput(const Options& options, RunInput& input);

/// The folder is there or was made; false after an error line.
bool PrepareWorkFolder(const RunInput& input);

/// One of the library's operations that turn a message into records.
using StartOperation = long (CPLMInteract::*)(wchar_t*, wchar_t*, SLoginInfo**, SSignType**, SSignType**);

/// Hands the message to the library, which keeps a copy under `folder`. False when it was refused.
bool StartMessage(CPLMInteract& plm, StartOperation operation, const CString& message, const CString& folder,
                  MessageRecords& records);

} // namespace host
