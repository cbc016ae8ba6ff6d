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

std::vector<OptionRule> BackSignCommand::Rules() {
    return MessageRules({{L"--return", L"FILE", true}, {L"--dry-run", nullptr, false}});
}

int BackSignCommand::Run(const Options& options) {
    // No box of the system may stop a run that nobody watches.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    RunInput input;
    if (!LoadRunInput(options, input)) return exitRefused;
    const CString returnPath = ReturnPath(options.Value(L"--return"));
    if (!FolderExists(ParentFolder(returnPath) + L"\\")) {
        PrintError(Text(TextId::NoReturnFolder, {returnPath}));
        return exitRefused;
    }
    if (options.Has(L"--dry-run")) return DryRun(input).Run();
    if (!PrepareWorkFolder(input)) return exitRefused;
    return SignAll(input, returnPath);
}

int BackSignCommand::SignAll(const RunInput& input, const CString& returnPath) {
    Session session;
    if (!session.Open(false)) {
        PrintError(Text(TextId::FrameworkFailed));
        return exitFailed;
    }
    if (!session.HasModel()) PrintError(Text(TextId::NoModel));
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSignForBackSign, input.message, input.work,
                      records)) {
        PrintError(Text(TextId::MessageRefused));
        return exitRefused;
    }
    const std::vector<Document> documents = DocumentsOf(*records.files);
    BackSignRun run(session, *records.login, input.work);
    run.Run(documents);

    const size_t done = static_cast<size_t>(run.SignedNames().GetCount());
    PrintLine(Text(TextId::Summary, {NumberText(done), NumberText(documents.size())}));
    if (!session.Plm().NotifyPLMSignForBackSignRet(run.SignedNames(), InText(kNameProperty),
                                                   InText(input.work), InText(returnPath))) {
        PrintError(Text(TextId::ReturnFileFailed, {ReturnFileOf(returnPath)}));
        return exitFailed;
    }
    PrintLine(Text(TextId::ReturnFile, {ReturnFileOf(returnPath)}));
    return ExitOfCount(done, documents.size());
}

} // namespace host
