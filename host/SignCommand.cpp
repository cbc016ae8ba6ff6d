// sign: signs the chosen document of a message with the library's dialogs.
#include <afxwin.h>

#include "host/Commands.h"
#include "host/Report.h"
#include "host/DocumentLine.h"
#include "host/InteractiveSession.h"
#include "host/Paths.h"
#include "host/Preflight.h"
#include "host/RunInput.h"
#include "host/RunLock.h"
#include "host/RunState.h"
#include "host/SignNotes.h"
#include "host/Signature.h"
#include "host/SignatureDrawing.h"
#include "host/StandIns.h"
#include "host/TransferList.h"

namespace host {

namespace {

constexpr wchar_t kKeepLog[] = L"--keep-log";

/// The road of one document, with a dialog at each station.
class InteractiveRun {
public:
    /// All arguments are borrowed.
    InteractiveRun(InteractiveSession& session, const SLoginInfo& login, const CString& work)
        : m_session(session), m_login(login), m_work(work), m_state(work) {}

    /// Signed, or the step that failed.
    Outcome Process(const Document& document);

private:
    bool Transfer(const Document& document, TextId step, long (CPLMInteract::*operation)(SSignFileDUL*));
    Outcome Sign(const Document& document, DocumentState& state);
    SignInfoPtr AskSignInfo(const Document& document, const CString& path);

    InteractiveSession& m_session;
    const SLoginInfo& m_login;
    const CString& m_work;
    RunState m_state;
};

Outcome InteractiveRun::Process(const Document& document) {
    if (!m_state.Open()) return TextId::NotNoted;
    if (!Transfer(document, TextId::StepDownload, &CPLMInteract::DownloadDoc))
        return Outcome::Because(TextId::FailedDownload);
    DocumentState state;
    state.name = document.Name();
    state.fingerprint = FingerprintOf(document, m_login.m_strUserName);
    const Outcome outcome = Sign(document, state);
    if (outcome != TextId::Signed) return outcome;
    if (!Transfer(document, TextId::StepUpload, &CPLMInteract::UploadDoc))
        return Outcome::Because(TextId::FailedUpload);
    const bool logged = LogSignature(m_session.Plm(), m_work, document, state.signature);
    if (!logged) m_session.Tell(Outcome::Because(TextId::LogNotWritten), {document.Name()});
    MarkSigned(m_session.Plm(), m_work, document, logged);
    state.progress = logged ? Progress::Done : Progress::Uploaded;
    m_state.Note(state);
    return TextId::Signed;
}

bool InteractiveRun::Transfer(const Document& document, TextId step,
                              long (CPLMInteract::*operation)(SSignFileDUL*)) {
    m_session.Window().ShowStep(Text(step, {document.Name()}));
    TransferList list(m_work, document);
    (m_session.Plm().*operation)(list.Start());
    // The dialog's result tells how the run went, the item whether the file was moved.
    return list.Moved();
}

Outcome InteractiveRun::Sign(const Document& document, DocumentState& state) {
    m_session.Window().ShowStep(Text(TextId::StepSign, {document.Name()}));
    if (!m_session.Library().ConnectSignServer()) return Outcome::Because(TextId::NoSignServer);
    if (!m_session.Library().Login(m_login)) return Outcome::Because(TextId::NotLoggedIn);
    const CString path = JoinPath(m_work, document.Name());
    const SignInfoPtr info = AskSignInfo(document, path);
    if (!info) return Outcome::Because(TextId::FailedSignInfo);
    CompleteSignInfo(*info, document, path, m_login.m_strUserName);
    state.progress = Progress::Signing;
    state.signature = {info->m_strUserName, info->m_strRole, info->m_strDateText};
    if (!m_state.Note(state)) return TextId::NotNoted;
    if (!SignDrawing(m_session.SignOpt(), &CSignOpt::Sign, *info, path))
        return Outcome::Because(TextId::FailedSign);
    state.progress = Progress::Signed;
    state.stamp = StampOf(path);
    m_state.Note(state);
    return TextId::Signed;
}

SignInfoPtr InteractiveRun::AskSignInfo(const Document& document, const CString& path) {
    constexpr int kUserNameSize = 1024; // room for the shared login's user name, as the library asks for it
    constexpr long kScopeSelectable = 1;
    wchar_t user[kUserNameSize] = L"";
    m_session.SignOpt().GetSignUserName(user);
    const SignatureDrawing drawing(m_session.Plm(), user, document.Role());
    SSignInfo* made = nullptr;
    m_session.SignOpt().GetSignInfo(InText(path), kScopeSelectable, InText(document.Role()), &made);
    return SignInfoPtr(made);
}

} // namespace

std::vector<OptionRule> SignRules() {
    std::vector<OptionRule> rules = MessageRules(InteractiveSession::Rules());
    rules.push_back({kKeepLog, nullptr, false});
    return rules;
}

int RunSign(const Options& options) {
    RunInput input;
    if (!LoadRunInput(options, input) || !Preflight::CheckSettings() || !PrepareWorkFolder(input))
        return kExitRefused;
    InteractiveSession session(options);
    if (!session.Open()) return kExitFailed;
    const RunLock lock(input.work);
    if (!session.Holds(lock, input.work)) return kExitBusy;
    session.Window().ShowStep(Text(TextId::StepStart));
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSign, input.message, input.work, records)) {
        session.Tell(Outcome::Because(TextId::NothingChosen));
        return kExitRefused;
    }
    const std::vector<Document> documents = DocumentsOf(*records.files);
    if (documents.empty()) return kExitNone;

    Outcome outcome = RefusalsOf(documents).front();
    if (outcome == TextId::Ready)
        outcome = InteractiveRun(session, *records.login, input.work).Process(documents.front());
    TellDocument(documents.front().Name(), 0, 1, outcome);
    TellStandIns();
    if (outcome != TextId::Signed) {
        session.Tell(outcome);
        return kExitNone;
    }
    if (options.Has(kKeepLog)) {
        Tell(TextId::LogKept);
        return kExitDone;
    }
    if (session.Plm().SendSignLog(input.work) != 0) {
        session.Tell(Outcome::Because(TextId::LogNotSent));
        return kExitLog;
    }
    Tell(TextId::LogSent);
    return kExitDone;
}

} // namespace host
