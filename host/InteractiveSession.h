// A session with a visible main window, whose dialogs can be pictured and answered unattended.
#pragma once

#include <memory>

#include "host/DialogWatcher.h"
#include "host/Options.h"
#include "host/Session.h"

namespace host {

class CInteractiveSession {
public:
    /// Options that every interactive command takes.
    static std::vector<SOptionRule> Rules();

    explicit CInteractiveSession(const COptions& options) : m_options(options) {}

    /// Shows the main window and begins to watch dialogs if the options ask for it; false after an error
    /// line.
    bool Open();

    CMainWindow& Window() { return m_session.Window(); }
    CPLMInteract& Plm() { return m_session.Plm(); }
    CSignOpt& SignOpt() { return m_session.SignOpt(); }
    CSession& Session() { return m_session; }

private:
    const COptions& m_options;
    CSession m_session;
    std::unique_ptr<CDialogWatcher> m_pWatcher;
};

} // namespace host
