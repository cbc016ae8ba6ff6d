// A session with a visible main window, whose dialogs can be pictured and answered unattended.
#pragma once

#include <memory>

#include "host/DialogWatcher.h"
#include "host/Options.h"
#include "host/Outcome.h"
#include "host/RunLock.h"
#include "host/Session.h"

namespace host {

class InteractiveSession {
public:
    /// Options that every interactive command takes.
    static std::vector<OptionRule> Rules();

    explicit InteractiveSession(const Options& options) : m_options(options) {}

    /// Shows the main window and begins to watch dialogs if the options ask for it; false after an error
    /// line.
    bool Open();

    /// Says in a window, and on the console for who watches that, what keeps the signer from going on.
    void Tell(const Outcome& outcome, std::initializer_list<CString> arguments = {});
    /// Whether this run has the work folder for itself; tells it when it hasn't.
    bool Holds(const RunLock& lock, const CString& work);

    MainWindow& Window() { return m_session.Window(); }
    CPLMInteract& Plm() { return m_session.Plm(); }
    CSignOpt& SignOpt() { return m_session.SignOpt(); }
    Session& Library() { return m_session; }

private:
    const Options& m_options;
    Session m_session;
    std::unique_ptr<DialogWatcher> m_watcher;
};

} // namespace host
