// sign: the interactive run.
#include <afxwin.h>

#include "host/Console.h"
#include "host/DocumentLine.h"
#include "host/Paths.h"
#include "host/SignCommand.h"
#include "host/Signature.h"
#include "host/SignatureDrawing.h"
#include "host/TransferList.h"

namespace host {

namespace {

constexpr wchar_t kKeepLog[] = L"--keep-log";

/// Room for the shared login's user name, as the library asks for it.
constexpr int kUserNameLength = 1024;

} // namespace

std::vector<OptionRule> SignCommand::Rules() {
    std::vector<OptionRule> rules = MessageRules(InteractiveSession::Rules());
    rules.push_back({kKeepLog, nullptr, false});
    return rules;
}

int SignCommand::Run(const Options& options) {
    RunInput input;
    if (!LoadRunInput(options, input) || !PrepareWorkFolder(input)) return exitRefused;
    m_work = input.work;
    InteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    session.Window().ShowStep(Text(TextId::StepStart));
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSign, input.message, m_work, records)) {
        PrintError(Text(TextId::NothingChosen));
        return exitRefused;
    }
    const std::vector<Document> documents = DocumentsOf(*records.files);
    if (documents.empty()) return exitNone;

    TextId outcome = RefusalsOf(documents).front();
    if (outcome == TextId::Ready) outcome = Process(session, *records.login, documents.front());
    PrintDocumentLine(documents, 0, outcome);
    if (outcome != TextId::Signed) return exitNone;
    if (options.Has(kKeepLog)) {
        PrintLine(Text(TextId::LogKept));
    } else {
        const bool sent = SignMarks(session.Plm(), m_work).SendLog();
        PrintLine(Text(sent ? TextId::LogSent : TextId::LogNotSent));
    }
    return exitDone;
}

TextId SignCommand::Process(InteractiveSession& session, const SLoginInfo& login, const Document& document) {
    if (!Transfer(session, document, TextId::StepDownload, &CPLMInteract::DownloadDoc))
        return TextId::FailedDownload;
    SignMarks marks(session.Plm(), m_work);
    const TextId outcome = Sign(session, login, document, marks);
    if (outcome != TextId::Signed) return outcome;
    if (Transfer(session, document, TextId::StepUpload, &CPLMInteract::UploadDoc)) return TextId::Signed;
    marks.Withdraw(document);
    return TextId::FailedUpload;
}

bool SignCommand::Transfer(InteractiveSession& session, const Document& document, TextId step,
                           long (CPLMInteract::*operation)(SSignFileDUL*)) {
    session.Window().ShowStep(Text(step, {document.Name()}));
    TransferList list(m_work, document);
    (session.Plm().*operation)(list.Start());
    // The dialog's result tells how the run went, the item whether the file was moved.
    return list.Moved();
}

TextId SignCommand::Sign(InteractiveSession& session, const SLoginInfo& login, const Document& document,
                         SignMarks& marks) {
    session.Window().ShowStep(Text(TextId::StepSign, {document.Name()}));
    if (!session.Library().ConnectSignServer()) return TextId::NoSignServer;
    if (!session.Library().Login(login)) return TextId::NotLoggedIn;
    const CString path = JoinPath(m_work, document.Name());
    const SignInfoPtr info = AskSignInfo(session, document, path);
    if (!info) return TextId::FailedSignInfo;
    CompleteSignInfo(*info, document, path, login.m_strUserName);
    if (!SignDrawing(session.SignOpt(), &CSignOpt::Sign, *info, path)) return TextId::FailedSign;
    if (!marks.Note(document, *info)) PrintError(Text(TextId::LogNotWritten, {document.Name()}));
    return TextId::Signed;
}

SignInfoPtr SignCommand::AskSignInfo(InteractiveSession& session, const Document& document,
                                     const CString& path) {
    constexpr long scopeSelectable = 1;
    wchar_t user[kUserNameLength] = L"";
    session.SignOpt().GetSignUserName(user);
    const SignatureDrawing drawing(session.Plm(), user, document.Role());
    SSignInfo* made = nullptr;
    session.SignOpt().GetSignInfo(InText(path), scopeSelectable, InText(document.Role()), &made);
    return SignInfoPtr(made);
}

} // namespace host
