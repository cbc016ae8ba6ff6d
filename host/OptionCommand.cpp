// option: the option dialog.
#include <afxwin.h>

#include "host/Report.h"
#include "host/InteractiveSession.h"
#include "host/Commands.h"
#include "host/Texts.h"

namespace host {

std::vector<OptionRule> OptionRules() {
    return InteractiveSession::Rules();
}

int RunOption(const Options& options) {
    InteractiveSession session(options);
    if (!session.Open()) return kExitFailed;
    // The dialog needs the settings only, which connecting prepares whether the server is there or not.
    session.Library().ConnectSignServer();
    const bool confirmed = session.SignOpt().SetOption() != 0;
    // Confirmed, the operation succeeds even where the file could not be written; its cause tells.
    const Outcome fault = Outcome::Because(confirmed ? TextId::OptionNotStored : TextId::Cancelled);
    if (fault.cause != 0) {
        TellError(fault);
        return confirmed ? kExitFailed : kExitNone;
    }
    TellResult(confirmed ? TextId::OptionStored : TextId::Cancelled);
    return confirmed ? kExitDone : kExitNone;
}

} // namespace host
