#include <afxwin.h>

#include <algorithm>

#include "host/BackSignRun.h"
#include "host/Report.h"
#include "host/DocumentLine.h"
#include "host/Paths.h"
#include "host/Records.h"
#include "host/SignNotes.h"
#include "host/Signature.h"
#include "host/TransferList.h"

namespace host {

BackSignRun::BackSignRun(Session& session, const SLoginInfo& login, const CString& work,
                         const RunOptions& options, const GivenUp& givenUp, CallLimit& limit)
    : m_session(session), m_login(login), m_work(work), m_options(options), m_givenUp(givenUp),
      m_limit(limit), m_state(work) {
    if (givenUp.signServer) m_connection = TextId::SignServerSilent;
}

void BackSignRun::Run(const std::vector<Document>& documents) {
    m_noting = m_state.Open();
    const std::vector<TextId> refusals = RefusalsOf(documents);
    // Lines of the documents before were printed by the process that gave the last one up.
    const size_t firstLine = m_givenUp.documents.empty() ? 0 : m_givenUp.documents.back();
    for (size_t i = 0; i < documents.size(); ++i) {
        m_current = i;
        if (i >= firstLine) TellProgress(i, documents.size());
        const Outcome outcome = OutcomeOf(documents[i], refusals[i]);
        if (outcome == TextId::Signed || outcome == TextId::AlreadySigned) {
            m_signedNames.AddTail(documents[i].Name());
        } else if (outcome != TextId::NotTried) {
            ++m_failures;
        }
        if (i >= firstLine) TellDocument(documents[i].Name(), i, documents.size(), outcome);
    }
    if (m_options.log) SendLog();
}

GivenUp BackSignRun::HandOver() {
    m_state.Close();
    GivenUp inHand;
    inHand.documents = {m_current};
    inHand.signServer = m_askingSignServer;
    inHand.log = m_sending;
    return inHand;
}

Outcome BackSignRun::OutcomeOf(const Document& document, TextId refusal) {
    if (refusal != TextId::Ready) return refusal;
    const bool enough = m_options.maxFailures > 0 && m_failures >= m_options.maxFailures;
    return enough || m_stop.IsMade() ? Outcome(TextId::NotTried) : Process(document);
}

Outcome BackSignRun::Process(const Document& document) {
    const CString path = JoinPath(m_work, document.Name());
    DocumentState state = m_state.Of(document.Name());
    const CString fingerprint = FingerprintOf(document, m_login.m_strUserName);
    const bool same = state.fingerprint == fingerprint;
    const CString stamp = same ? StampOf(path) : CString();
    const bool unchanged = same && state.stamp == stamp;
    const bool returned = state.progress == Progress::Uploaded || state.progress == Progress::Done;
    state.name = document.Name();
    state.fingerprint = fingerprint;
    // What a process before this one has dealt with is not done once more.
    const bool taken = !m_givenUp.documents.empty() && m_current <= m_givenUp.documents.back();
    const bool again = m_options.again && !taken;
    if (!again && same && returned && (unchanged || stamp.IsEmpty())) {
        Log(document, state);
        return TextId::AlreadySigned;
    }
    if (!m_noting) return TextId::NotNoted;
    const auto& givenUp = m_givenUp.documents;
    if (std::find(givenUp.begin(), givenUp.end(), m_current) != givenUp.end()) return TextId::TimedOut;
    if (!again && unchanged && state.progress == Progress::Signed) return Return(document, state);
    const bool mayBeSigned = same && state.progress != Progress::None;
    return SignAnew(document, state, again || mayBeSigned);
}

Outcome BackSignRun::SignAnew(const Document& document, DocumentState& state, bool deleteFirst) {
    const Outcome& connection = Connect();
    if (connection != TextId::Ready) return connection;
    if (!Download(document)) return Outcome::Because(TextId::FailedDownload);
    const Outcome outcome = Sign(document, state, deleteFirst);
    return outcome == TextId::Signed ? Return(document, state) : outcome;
}

Outcome BackSignRun::Return(const Document& document, DocumentState& state) {
    // The server's log must not tell of a signature that the server doesn't have: upload first.
    if (!Upload(document)) return Outcome::Because(TextId::FailedUpload);
    state.progress = Progress::Uploaded;
    m_state.Note(state);
    Log(document, state);
    return TextId::Signed;
}

const Outcome& BackSignRun::Connect() {
    if (m_connection == TextId::Count) {
        m_askingSignServer = true;
        const CallLimit::Call call(m_limit);
        m_connection = TextId::Ready;
        if (!m_session.ConnectSignServer()) {
            m_connection = Outcome::Because(TextId::NoSignServer);
        } else if (!m_session.Login(m_login)) {
            m_connection = Outcome::Because(TextId::NotLoggedIn);
        }
        m_askingSignServer = false;
    }
    return m_connection;
}

bool BackSignRun::Download(const Document& document) {
    const CallLimit::Call call(m_limit);
    TransferList list(m_work, document);
    if (!m_session.Plm().DownloadDocForBackSign(list.Start())) return false;
    // The fresh copy is unsigned, whatever the tags say of an earlier one.
    m_session.Plm().UpdateDocsSignTag(list.List(), 1);
    return true;
}

Outcome BackSignRun::Sign(const Document& document, DocumentState& state, bool deleteFirst) {
    const CallLimit::Call call(m_limit);
    const CString path = JoinPath(m_work, document.Name());
    SSignInfo* made = nullptr;
    const long assembled = m_session.SignOpt().GetSignInfoForBackSign(InText(path), &made);
    const SignInfoPtr info(made);
    if (!assembled || !info) return Outcome::Because(TextId::FailedSignInfo);
    CompleteSignInfo(*info, document, path, m_login.m_strUserName);

    state.progress = Progress::Signing;
    state.stamp.Empty();
    state.signature = {info->m_strUserName, info->m_strRole, info->m_strDateText};
    if (!m_state.Note(state)) return TextId::NotNoted;
    m_askingSignServer = true;
    // There may be no signature, if the earlier run ended before the server's call.
    if (deleteFirst) SignDrawing(m_session.SignOpt(), &CSignOpt::DeleteSignForBackSign, *info, path);
    const bool placed = SignDrawing(m_session.SignOpt(), &CSignOpt::SignForBackSign, *info, path);
    m_askingSignServer = false;
    if (!placed) {
        const Outcome failed = Outcome::Because(TextId::FailedSign);
        // A server that has gone signs nothing more: the other documents are not fetched for it.
        if (!m_session.SignServerAnswers()) m_connection = TextId::SignServerGone;
        return failed;
    }
    state.progress = Progress::Signed;
    state.stamp = StampOf(path);
    m_state.Note(state);
    return TextId::Signed;
}

bool BackSignRun::Upload(const Document& document) {
    const CallLimit::Call call(m_limit);
    TransferList list(m_work, document);
    return m_session.Plm().UploadDocForBackSign(list.Start()) != 0;
}

void BackSignRun::Log(const Document& document, DocumentState& state) {
    if (state.progress == Progress::Done) return;
    const bool logged = m_options.log && LogSignature(m_session.Plm(), m_work, document, state.signature);
    const Outcome notLogged = Outcome::Because(TextId::LogNotWritten);
    MarkSigned(m_session.Plm(), m_work, document, logged);
    if (m_options.log && !logged) {
        TellError(notLogged, {document.Name()});
        m_logComplete = false;
        return; // the next run writes it
    }
    state.progress = Progress::Done;
    m_state.Note(state);
}

void BackSignRun::SendLog() {
    m_sending = true;
    const CallLimit::Call call(m_limit);
    if (!m_givenUp.log && m_session.Plm().SendSignLog(m_work) == 0) return;
    TellError(m_givenUp.log ? TextId::LogNotSent : Outcome::Because(TextId::LogNotSent));
    m_logComplete = false;
}

} // namespace host
