// append: the merge of a further message.
#include <afxwin.h>

#include "host/AppendCommand.h"
#include "host/Console.h"
#include "host/Document.h"
#include "host/InteractiveSession.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace host {

std::vector<SOptionRule> CAppendCommand::Rules() {
    return MessageRules(CInteractiveSession::Rules());
}

int CAppendCommand::Run(const COptions& options) {
    SRunInput input;
    if (!LoadRunInput(options, input)) return exitRefused;
    if (!FileExists(SignDataFile(input.m_strWork, L"StartSign.Xml"))) {
        PrintError(Text(EText::NothingKept, {input.m_strWork}));
        return exitRefused;
    }
    CInteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    SMessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::AppendStartSign, input.m_strMessage, input.m_strWork,
                      records)) {
        PrintLine(Text(EText::NothingMerged));
        return exitNone;
    }
    // The library adds every new document to the kept message, but hands only the first one out.
    for (const CDocument& document : DocumentsOf(*records.m_pFiles)) {
        PrintLine(Text(EText::Merged, {document.Name()}));
    }
    return exitDone;
}

} // namespace host
