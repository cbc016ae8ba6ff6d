// option: the option dialog.
#include <afxwin.h>

#include "host/Console.h"
#include "host/InteractiveSession.h"
#include "host/OptionCommand.h"
#include "host/Texts.h"

namespace host {

std::vector<SOptionRule> COptionCommand::Rules() {
    return CInteractiveSession::Rules();
}

int COptionCommand::Run(const COptions& options) {
    CInteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    // The dialog needs the settings only, which connecting prepares whether the server is there or not.
    session.Session().ConnectSignServer();
    const bool confirmed = session.SignOpt().SetOption() != 0;
    PrintLine(Text(confirmed ? EText::OptionStored : EText::Cancelled));
    return confirmed ? exitDone : exitNone;
}

} // namespace host
