// append: merges a further message into the one that the work folder keeps.
#include <afxwin.h>

#include <string>

#include "base/WholeFile.h"
#include "host/Commands.h"
#include "host/Report.h"
#include "host/Document.h"
#include "host/InteractiveSession.h"
#include "host/Paths.h"
#include "host/RunInput.h"
#include "host/RunLock.h"
#include "host/Texts.h"

namespace host {

std::vector<OptionRule> AppendRules() {
    return MessageRules(InteractiveSession::Rules());
}

int RunAppend(const Options& options) {
    RunInput input;
    if (!LoadRunInput(options, input)) return kExitRefused;
    const CString kept = SignDataFile(input.work, L"StartSign.Xml");
    if (!FileExists(kept)) {
        TellError(TextId::NothingKept, {input.work});
        return kExitRefused;
    }
    InteractiveSession session(options);
    if (!session.Open()) return kExitFailed;
    const RunLock lock(input.work);
    if (!session.Holds(lock, input.work)) return kExitBusy;
    std::string before;
    std::string after;
    base::ReadWholeFile(kept, before);
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::AppendStartSign, input.message, input.work, records)) {
        // The library merges first and lets the user choose then.
        base::ReadWholeFile(kept, after);
        session.Tell(after == before ? Outcome::Because(TextId::NothingMerged) : TextId::MergedUnchosen);
        return kExitNone;
    }
    // The library adds every new document to the kept message, but hands only the first one out.
    for (const Document& document : DocumentsOf(*records.files)) {
        Tell(TextId::Merged, {document.Name()});
    }
    return kExitDone;
}

} // namespace host
