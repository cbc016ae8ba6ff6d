// The checks of a dry run.
#include <afxwin.h>

#include "host/Command.h"
#include "host/Console.h"
#include "host/DocumentLine.h"
#include "host/DryRun.h"
#include "host/Paths.h"
#include "host/TemporaryFolder.h"
#include "host/Texts.h"

namespace host {

int CDryRun::Run() {
    const CTemporaryFolder folder;
    if (folder.Path().IsEmpty()) {
        PrintError(Text(EText::NoTemporaryFolder));
        return exitFailed;
    }
    CSession session;
    if (!session.Open(false)) {
        PrintError(Text(EText::FrameworkFailed));
        return exitFailed;
    }
    return Check(session, folder.Path());
}

int CDryRun::Check(CSession& session, const CString& folder) {
    SMessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSignForBackSign, m_input.m_strMessage, folder,
                      records)) {
        PrintError(Text(EText::MessageRefused));
        return exitRefused;
    }
    const std::vector<CDocument> documents = DocumentsOf(*records.m_pFiles);
    PrintLine(Text(EText::DryMessage, {records.m_pLogin->m_strUserName, NumberText(documents.size())}));
    PrintLine(Text(EText::DryVault, {m_input.m_strVault}));
    if (!session.HasModel()) PrintLine(Text(EText::NoModel));
    // Connecting also prepares the settings that are reported next.
    const bool server = session.ConnectSignServer();
    PrintLine(Text(server ? EText::DrySignServer : EText::DryNoSignServer));
    ReportSettings(session.SignOpt());
    const size_t ready = ReportDocuments(documents);
    PrintLine(Text(EText::DrySummary, {NumberText(server ? ready : 0), NumberText(documents.size())}));
    return ExitOfCount(server ? ready : 0, documents.size());
}

void CDryRun::ReportSettings(CSignOpt& signOpt) {
    // The sign parameters come from the settings alone, so that assembling them shows what the run would use.
    SSignInfo* made = nullptr;
    const long assembled = signOpt.GetSignInfoForBackSign(InText(m_input.m_strWork), &made);
    const SignInfoPtr info(made);
    const CString settings = JoinPath(ModuleFolder(L"Varnoke.dll"), L"Varnoke.ini");
    PrintLine(Text(FileExists(settings) ? EText::DrySettings : EText::DryDefaults, {settings}));
    if (assembled && info) PrintLine(Text(EText::DryDate, {info->m_strDateText, info->m_strDateFontName}));
}

size_t CDryRun::ReportDocuments(const std::vector<CDocument>& documents) {
    size_t ready = 0;
    const std::vector<EText> refusals = RefusalsOf(documents);
    for (size_t i = 0; i < documents.size(); ++i) {
        EText outcome = refusals[i];
        if (outcome == EText::Ready && !IsInVault(documents[i])) outcome = EText::NotInVault;
        if (outcome == EText::Ready) ++ready;
        PrintDocumentLine(documents, i, outcome);
    }
    return ready;
}

bool CDryRun::IsInVault(const CDocument& document) const {
    const CString files = JoinPath(m_input.m_strVault, L"files");
    const CString path = FullPath(JoinPath(files, document.RemoteName()));
    return path.Left(files.GetLength() + 1).CompareNoCase(files + L"\\") == 0 && FileExists(path);
}

} // namespace host
