// The silent run over the documents of a message.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

#include <vector>

#include "host/CallLimit.h"
#include "host/Document.h"
#include "host/Outcome.h"
#include "host/RunState.h"
#include "host/Session.h"
#include "host/StopRequest.h"
#include "host/Texts.h"

namespace host {

struct RunOptions {
    bool again = false;     ///< sign what is signed already anew
    bool log = true;        ///< write and send the sign log
    size_t maxFailures = 0; ///< stop after so many; 0: never
};

/// Documents that earlier processes of this run gave up, by their place in the message, because a call did
/// not return; see RunHandOver.
struct GivenUp {
    std::vector<size_t> documents;
    bool signServer = false; ///< it was the signing server's connection or login that did not return
    bool log = false;        ///< it was the sending of the log
};

class BackSignRun {
public:
    /// All arguments are borrowed. `work` is the documents' folder.
    BackSignRun(Session& session, const SLoginInfo& login, const CString& work, const RunOptions& options,
                const GivenUp& givenUp, CallLimit& limit);

    /// Takes every document as far as it gets and prints its line. Each step is noted, so that a run that
    /// ends at any moment can be gone on with. Afterwards SignedNames() holds the names of those that are
    /// signed and on the server, by this run or an earlier one.
    void Run(const std::vector<Document>& documents);
    CStringList& SignedNames() { return m_signedNames; }
    /// False when an entry of the sign log could not be written, or the log not be sent.
    bool IsLogComplete() const { return m_logComplete; }

    /// Lets another process go on while this one's thread is in a call: gives the notes free and tells what
    /// is in hand. From any thread.
    GivenUp HandOver();

private:
    Outcome OutcomeOf(const Document& document, TextId refusal);
    /// Signed, AlreadySigned, or the step that failed.
    Outcome Process(const Document& document);
    Outcome SignAnew(const Document& document, DocumentState& state, bool deleteFirst);
    Outcome Return(const Document& document, DocumentState& state);
    bool Download(const Document& document);
    bool Upload(const Document& document);
    Outcome Sign(const Document& document, DocumentState& state, bool deleteFirst);
    /// Ready once the signing server takes calls, else the reason why it doesn't. Connects when it is first
    /// needed.
    const Outcome& Connect();
    void Log(const Document& document, DocumentState& state);
    void SendLog();

    Session& m_session;
    const SLoginInfo& m_login;
    const CString m_work;
    const RunOptions m_options;
    const GivenUp& m_givenUp;
    CallLimit& m_limit;
    RunState m_state;
    StopRequest m_stop;
    CStringList m_signedNames;
    Outcome m_connection = TextId::Count; ///< Count: not tried yet
    size_t m_failures = 0;
    volatile size_t m_current = 0;
    volatile bool m_askingSignServer = false;
    volatile bool m_sending = false;
    bool m_noting = false; ///< whether steps can be noted
    bool m_logComplete = true;
};

} // namespace host
