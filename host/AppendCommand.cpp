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

std::vector<SOptionRule> CAppendCommand::Rules() {
    return MessageRules(CInteractiveSession::Rules());
}

int CAppendCommand::Run(const COptions& options) {
    SRunInput input;
    if (!LoadRunInput(options, input)) return exitRefused;
    const CString kept = SignDataFile(input.m_strWork, L"StartSign.Xml");
    if (!FileExists(kept)) {
        PrintError(Text(EText::NothingKept, {input.m_strWork}));
        return exitRefused;
    }
    CInteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    const CString before = TextOf(kept);
    SMessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::AppendStartSign, input.m_strMessage, input.m_strWork,
                      records)) {
        // The library merges first and lets the user choose then.
        PrintLine(Text(TextOf(kept) == before ? EText::NothingMerged : EText::MergedUnchosen));
        return exitNone;
    }
    // The library adds every new document to the kept message, but hands only the first one out.
    for (const CDocument& document : DocumentsOf(*records.m_pFiles)) {
        PrintLine(Text(EText::Merged, {document.Name()}));
    }
    return exitDone;
}

} // namespace host
