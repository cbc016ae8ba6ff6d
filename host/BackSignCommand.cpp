// back-sign: the silent run.
#include <afxwin.h>

#include "host/BackSignCommand.h"
#include "host/BackSignRun.h"
#include "host/Console.h"
#include "host/DocumentLine.h"
#include "host/DryRun.h"
#include "host/Paths.h"
#include "host/Texts.h"

namespace host {

namespace {

/// The library cuts the path at its last full stop, wherever that is: a name without one gets its extension
/// here.
CString ReturnPath(const CString& option) {
    const CString path = FullPath(option);
    return path.ReverseFind(L'.') > path.ReverseFind(L'\\') ? path : path + L".xml";
}

CString ReturnFileOf(const CString& returnPath) {
    return returnPath.Left(returnPath.ReverseFind(L'.')) + L"_Ret.Xml";
}

} // namespace

std::vector<SOptionRule> CBackSignCommand::Rules() {
    return MessageRules({{L"--return", L"FILE", true}, {L"--dry-run", nullptr, false}});
}

int CBackSignCommand::Run(const COptions& options) {
    // No box of the system may stop a run that nobody watches.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    SRunInput input;
    if (!LoadRunInput(options, input)) return exitRefused;
    const CString returnPath = ReturnPath(options.Value(L"--return"));
    if (!FolderExists(ParentFolder(returnPath) + L"\\")) {
        PrintError(Text(EText::NoReturnFolder, {returnPath}));
        return exitRefused;
    }
    if (options.Has(L"--dry-run")) return CDryRun(input).Run();
    if (!PrepareWorkFolder(input)) return exitRefused;
    return SignAll(input, returnPath);
}

int CBackSignCommand::SignAll(const SRunInput& input, const CString& returnPath) {
    CSession session;
    if (!session.Open(false)) {
        PrintError(Text(EText::FrameworkFailed));
        return exitFailed;
    }
    if (!session.HasModel()) PrintError(Text(EText::NoModel));
    SMessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSignForBackSign, input.m_strMessage, input.m_strWork,
                      records)) {
        PrintError(Text(EText::MessageRefused));
        return exitRefused;
    }
    const std::vector<CDocument> documents = DocumentsOf(*records.m_pFiles);
    CBackSignRun run(session, *records.m_pLogin, input.m_strWork);
    run.Run(documents);

    const size_t done = static_cast<size_t>(run.SignedNames().GetCount());
    PrintLine(Text(EText::Summary, {NumberText(done), NumberText(documents.size())}));
    if (!session.Plm().NotifyPLMSignForBackSignRet(run.SignedNames(), InText(kNameProperty),
                                                   InText(input.m_strWork), InText(returnPath))) {
        PrintError(Text(EText::ReturnFileFailed, {ReturnFileOf(returnPath)}));
        return exitFailed;
    }
    PrintLine(Text(EText::ReturnFile, {ReturnFileOf(returnPath)}));
    return ExitOfCount(done, documents.size());
}

} // namespace host
