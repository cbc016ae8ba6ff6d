// The silent run over the documents of a message.
#include <afxwin.h>

#include "host/BackSignRun.h"
#include "host/Console.h"
#include "host/DocumentLine.h"
#include "host/Paths.h"
#include "host/Records.h"
#include "host/Signature.h"
#include "host/TransferList.h"

namespace host {

BackSignRun::BackSignRun(Session& session, const SLoginInfo& login, const CString& work)
    : m_session(session), m_login(login), m_work(work), m_marks(session.Plm(), work) {}

void BackSignRun::Run(const std::vector<Document>& documents) {
    const TextId connection = Connect();
    const std::vector<TextId> refusals = RefusalsOf(documents);
    for (size_t i = 0; i < documents.size(); ++i) {
        TextId outcome = refusals[i];
        if (outcome == TextId::Ready) outcome = connection;
        if (outcome == TextId::Ready) outcome = Process(documents[i]);
        if (outcome == TextId::Signed) m_signedNames.AddTail(documents[i].Name());
        PrintDocumentLine(documents, i, outcome);
    }
    if (!m_marks.SendLog()) PrintError(Text(TextId::LogNotSent));
}

TextId BackSignRun::Connect() {
    if (!m_session.ConnectSignServer()) return TextId::NoSignServer;
    return m_session.Login(m_login) ? TextId::Ready : TextId::NotLoggedIn;
}

TextId BackSignRun::Process(const Document& document) {
    if (!Download(document)) return TextId::FailedDownload;
    const TextId outcome = Sign(document);
    if (outcome != TextId::Signed) return outcome;
    if (Upload(document)) return TextId::Signed;
    m_marks.Withdraw(document);
    return TextId::FailedUpload;
}

bool BackSignRun::Download(const Document& document) {
    TransferList list(m_work, document);
    if (!m_session.Plm().DownloadDocForBackSign(list.Start()) || !list.Moved()) return false;
    // The fresh copy is unsigned, whatever the tags say of an earlier one.
    m_session.Plm().UpdateDocsSignTag(list.List(), 1);
    return true;
}

TextId BackSignRun::Sign(const Document& document) {
    const CString path = JoinPath(m_work, document.Name());
    SSignInfo* made = nullptr;
    const long assembled = m_session.SignOpt().GetSignInfoForBackSign(InText(path), &made);
    const SignInfoPtr info(made);
    if (!assembled || !info) return TextId::FailedSignInfo;
    CompleteSignInfo(*info, document, path, m_login.m_strUserName);
    if (!SignDrawing(m_session.SignOpt(), &CSignOpt::SignForBackSign, *info, path)) return TextId::FailedSign;
    if (!m_marks.Note(document, *info)) PrintError(Text(TextId::LogNotWritten, {document.Name()}));
    return TextId::Signed;
}

bool BackSignRun::Upload(const Document& document) {
    TransferList list(m_work, document);
    return m_session.Plm().UploadDocForBackSign(list.Start()) && list.Moved();
}

} // namespace host
