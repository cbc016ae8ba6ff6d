// append: the merge of a further message.
#include <afxwin.h>

#include "host/AppendCommand.h"
#include "host/Console.h"
#include "host/Document.h"
#include "host/InteractiveSession.h"
#include "host/MessageFile.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace host {

namespace {

/// The text of a message file; empty when it can't be read.
CString TextOf(const CString& file) {
    CString text, error;
    ReadMessageFile(file, text, error);
    return text;
}

} // namespace

std::vector<OptionRule> AppendCommand::Rules() {
    return MessageRules(InteractiveSession::Rules());
}

int AppendCommand::Run(const Options& options) {
    RunInput input;
    if (!LoadRunInput(options, input)) return exitRefused;
    const CString kept = SignDataFile(input.work, L"StartSign.Xml");
    if (!FileExists(kept)) {
        PrintError(Text(TextId::NothingKept, {input.work}));
        return exitRefused;
    }
    InteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    const CString before = TextOf(kept);
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::AppendStartSign, input.message, input.work, records)) {
        // The library merges first and lets the user choose then.
        PrintLine(Text(TextOf(kept) == before ? TextId::NothingMerged : TextId::MergedUnchosen));
        return exitNone;
    }
    // The library adds every new document to the kept message, but hands only the first one out.
    for (const Document& document : DocumentsOf(*records.files)) {
        PrintLine(Text(TextId::Merged, {document.Name()}));
    }
    return exitDone;
}

} // namespace host
