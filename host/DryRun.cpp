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

int DryRun::Run() {
    const TemporaryFolder folder;
    if (folder.Path().IsEmpty()) {
        PrintError(Text(TextId::NoTemporaryFolder));
        return exitFailed;
    }
    Session session;
    if (!session.Open(false)) {
        PrintError(Text(TextId::FrameworkFailed));
        return exitFailed;
    }
    return Check(session, folder.Path());
}

int DryRun::Check(Session& session, const CString& folder) {
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSignForBackSign, m_input.message, folder, records)) {
        PrintError(Text(TextId::MessageRefused));
        return exitRefused;
    }
    const std::vector<Document> documents = DocumentsOf(*records.files);
    PrintLine(Text(TextId::DryMessage, {records.login->m_strUserName, NumberText(documents.size())}));
    PrintLine(Text(TextId::DryVault, {m_input.vault}));
    if (!session.HasModel()) PrintLine(Text(TextId::NoModel));
    // Connecting also prepares the settings that are reported next.
    const bool server = session.ConnectSignServer();
    PrintLine(Text(server ? TextId::DrySignServer : TextId::DryNoSignServer));
    ReportSettings(session.SignOpt());
    const size_t ready = ReportDocuments(documents);
    PrintLine(Text(TextId::DrySummary, {NumberText(server ? ready : 0), NumberText(documents.size())}));
    return ExitOfCount(server ? ready : 0, documents.size());
}

void DryRun::ReportSettings(CSignOpt& signOpt) {
    // The sign parameters come from the settings alone, so that assembling them shows what the run would use.
    SSignInfo* made = nullptr;
    const long assembled = signOpt.GetSignInfoForBackSign(InText(m_input.work), &made);
    const SignInfoPtr info(made);
    const CString settings = JoinPath(ModuleFolder(L"Varnoke.dll"), L"Varnoke.ini");
    PrintLine(Text(FileExists(settings) ? TextId::DrySettings : TextId::DryDefaults, {settings}));
    if (assembled && info) PrintLine(Text(TextId::DryDate, {info->m_strDateText, info->m_strDateFontName}));
}

size_t DryRun::ReportDocuments(const std::vector<Document>& documents) {
    size_t ready = 0;
    const std::vector<TextId> refusals = RefusalsOf(documents);
    for (size_t i = 0; i < documents.size(); ++i) {
        TextId outcome = refusals[i];
        if (outcome == TextId::Ready && !IsInVault(documents[i])) outcome = TextId::NotInVault;
        if (outcome == TextId::Ready) ++ready;
        PrintDocumentLine(documents, i, outcome);
    }
    return ready;
}

bool DryRun::IsInVault(const Document& document) const {
    const CString files = JoinPath(m_input.vault, L"files");
    const CString path = FullPath(JoinPath(files, document.RemoteName()));
    return path.Left(files.GetLength() + 1).CompareNoCase(files + L"\\") == 0 && FileExists(path);
}

} // namespace host
