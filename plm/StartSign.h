// The start-sign request: a message, read or merged, becomes the records of a signing run.
#pragma once

#include <afxwin.h>

#include "plm/StartSignMessage.h"

class CModelConfig;

namespace varnoke {

/// The arguments of a start-sign operation, as the host passed them.
struct StartSignArguments {
    const wchar_t* xml;
    const wchar_t* workFolder;
    SLoginInfo** login;
    SSignType** steps;
    SSignType** files;

    /// Checks the arguments in the order in which they are passed; an out-pointer that precedes the failing
    /// one has then been cleared already.
    bool CheckAndClear() const;
    void HandOut(StartSignRecords& records) const;
};

/// Gets the records from a message (XML text) and the work folder; false on failure.
using MessageReader = bool (*)(const wchar_t* xml, const CString& workFolder, StartSignRecords& records);

/// Hands out everything that the message holds.
bool StartWithAllDocuments(const StartSignArguments& arguments, MessageReader read);

/// Lets the user choose among the documents of the message and hands out one of them.
bool StartWithChosenDocument(const StartSignArguments& arguments, MessageReader read, CModelConfig& config,
                             CWnd* parent);

} // namespace varnoke
