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

CBackSignRun::CBackSignRun(CSession& session, const SLoginInfo& login, const CString& work)
    : m_session(session), m_login(login), m_strWork(work), m_marks(session.Plm(), work) {}

void CBackSignRun::Run(const std::vector<CDocument>& documents) {
    const EText connection = Connect();
    const std::vector<EText> refusals = RefusalsOf(documents);
    for (size_t i = 0; i < documents.size(); ++i) {
        EText outcome = refusals[i];
        if (outcome == EText::Ready) outcome = connection;
        if (outcome == EText::Ready) outcome = Process(documents[i]);
        if (outcome == EText::Signed) m_signedNames.AddTail(documents[i].Name());
        PrintDocumentLine(documents, i, outcome);
    }
    if (!m_marks.SendLog()) PrintError(Text(EText::LogNotSent));
}

EText CBackSignRun::Connect() {
    if (!m_session.ConnectSignServer()) return EText::NoSignServer;
    return m_session.Login(m_login) ? EText::Ready : EText::NotLoggedIn;
}

EText CBackSignRun::Process(const CDocument& document) {
    if (!Download(document)) return EText::FailedDownload;
    const EText outcome = Sign(document);
    if (outcome != EText::Signed) return outcome;
    if (Upload(document)) return EText::Signed;
    m_marks.Withdraw(document);
    return EText::FailedUpload;
}

bool CBackSignRun::Download(const CDocument& document) {
    CTransferList list(m_strWork, document);
    if (!m_session.Plm().DownloadDocForBackSign(list.Start()) || !list.Moved()) return false;
    // The fresh copy is unsigned, whatever the tags say of an earlier one.
    m_session.Plm().UpdateDocsSignTag(list.List(), 1);
    return true;
}

EText CBackSignRun::Sign(const CDocument& document) {
    const CString path = JoinPath(m_strWork, document.Name());
    SSignInfo* made = nullptr;
    const long assembled = m_session.SignOpt().GetSignInfoForBackSign(InText(path), &made);
    const SignInfoPtr info(made);
    if (!assembled || !info) return EText::FailedSignInfo;
    CompleteSignInfo(*info, document, path, m_login.m_strUserName);
    if (!SignDrawing(m_session.SignOpt(), &CSignOpt::SignForBackSign, *info, path)) return EText::FailedSign;
    if (!m_marks.Note(document, *info)) PrintError(Text(EText::LogNotWritten, {document.Name()}));
    return EText::Signed;
}

bool CBackSignRun::Upload(const CDocument& document) {
    CTransferList list(m_strWork, document);
    return m_session.Plm().UploadDocForBackSign(list.Start()) && list.Moved();
}

} // namespace host
