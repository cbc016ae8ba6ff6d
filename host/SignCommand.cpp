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

std::vector<SOptionRule> CSignCommand::Rules() {
    std::vector<SOptionRule> rules = MessageRules(CInteractiveSession::Rules());
    rules.push_back({kKeepLog, nullptr, false});
    return rules;
}

int CSignCommand::Run(const COptions& options) {
    SRunInput input;
    if (!LoadRunInput(options, input) || !PrepareWorkFolder(input)) return exitRefused;
    m_strWork = input.m_strWork;
    CInteractiveSession session(options);
    if (!session.Open()) return exitFailed;
    session.Window().ShowStep(Text(EText::StepStart));
    SMessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSign, input.m_strMessage, m_strWork, records)) {
        PrintError(Text(EText::NothingChosen));
        return exitRefused;
    }
    const std::vector<CDocument> documents = DocumentsOf(*records.m_pFiles);
    if (documents.empty()) return exitNone;

    EText outcome = RefusalsOf(documents).front();
    if (outcome == EText::Ready) outcome = Process(session, *records.m_pLogin, documents.front());
    PrintDocumentLine(documents, 0, outcome);
    if (outcome != EText::Signed) return exitNone;
    if (options.Has(kKeepLog)) {
        PrintLine(Text(EText::LogKept));
    } else {
        const bool sent = CSignMarks(session.Plm(), m_strWork).SendLog();
        PrintLine(Text(sent ? EText::LogSent : EText::LogNotSent));
    }
    return exitDone;
}

EText CSignCommand::Process(CInteractiveSession& session, const SLoginInfo& login,
                            const CDocument& document) {
    if (!Transfer(session, document, EText::StepDownload, &CPLMInteract::DownloadDoc))
        return EText::FailedDownload;
    CSignMarks marks(session.Plm(), m_strWork);
    const EText outcome = Sign(session, login, document, marks);
    if (outcome != EText::Signed) return outcome;
    if (Transfer(session, document, EText::StepUpload, &CPLMInteract::UploadDoc)) return EText::Signed;
    marks.Withdraw(document);
    return EText::FailedUpload;
}

bool CSignCommand::Transfer(CInteractiveSession& session, const CDocument& document, EText step,
                            long (CPLMInteract::*operation)(SSignFileDUL*)) {
    session.Window().ShowStep(Text(step, {document.Name()}));
    CTransferList list(m_strWork, document);
    (session.Plm().*operation)(list.Start());
    // The dialog's result tells how the run went, the item whether the file was moved.
    return list.Moved();
}

EText CSignCommand::Sign(CInteractiveSession& session, const SLoginInfo& login, const CDocument& document,
                         CSignMarks& marks) {
    session.Window().ShowStep(Text(EText::StepSign, {document.Name()}));
    if (!session.Session().ConnectSignServer()) return EText::NoSignServer;
    if (!session.Session().Login(login)) return EText::NotLoggedIn;
    const CString path = JoinPath(m_strWork, document.Name());
    const SignInfoPtr info = AskSignInfo(session, document, path);
    if (!info) return EText::FailedSignInfo;
    CompleteSignInfo(*info, document, path, login.m_strUserName);
    if (!SignDrawing(session.SignOpt(), &CSignOpt::Sign, *info, path)) return EText::FailedSign;
    if (!marks.Note(document, *info)) PrintError(Text(EText::LogNotWritten, {document.Name()}));
    return EText::Signed;
}

SignInfoPtr CSignCommand::AskSignInfo(CInteractiveSession& session, const CDocument& document,
                                      const CString& path) {
    constexpr long scopeSelectable = 1;
    wchar_t user[kUserNameLength] = L"";
    session.SignOpt().GetSignUserName(user);
    const CSignatureDrawing drawing(session.Plm(), user, document.Role());
    SSignInfo* made = nullptr;
    session.SignOpt().GetSignInfo(InText(path), scopeSelectable, InText(document.Role()), &made);
    return SignInfoPtr(made);
}

} // namespace host
