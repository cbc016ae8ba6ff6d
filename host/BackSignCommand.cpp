// back-sign: signs every document of a message without showing anything.
#include <afxwin.h>

#include "host/BackSignRun.h"
#include "host/Commands.h"
#include "host/Report.h"
#include "host/DocumentLine.h"
#include "host/Paths.h"
#include "host/Preflight.h"
#include "host/RunHandOver.h"
#include "host/RunInput.h"
#include "host/RunLock.h"
#include "host/StandIns.h"
#include "host/TemporaryFolder.h"
#include "host/Texts.h"

namespace host {

namespace {

constexpr wchar_t kAgain[] = L"--again";
constexpr wchar_t kNoLog[] = L"--no-log";
constexpr wchar_t kMaxFailures[] = L"--max-failures";
constexpr wchar_t kTimeout[] = L"--timeout";
constexpr wchar_t kDryRun[] = L"--dry-run";
constexpr DWORD kDefaultTimeout = 600; // s

/// The library cuts the path at its last full stop, wherever that is: a name without one gets its extension
/// here.
CString ReturnPath(const CString& option) {
    const CString path = FullPath(option);
    return path.ReverseFind(L'.') > path.ReverseFind(L'\\') ? path : path + L".xml";
}

CString ReturnFileOf(const CString& returnPath) {
    return returnPath.Left(returnPath.ReverseFind(L'.')) + L"_Ret.Xml";
}

int ExitOf(BackSignRun& run, size_t documents) {
    const size_t done = static_cast<size_t>(run.SignedNames().GetCount());
    if (done > 0 && !run.IsLogComplete()) return kExitLog;
    return ExitOfCount(done, documents);
}

int SignAll(Session& session, const RunInput& input, const MessageRecords& records, const Options& options,
            const CString& returnPath, RunLock& lock) {
    RunOptions runOptions;
    runOptions.again = options.Has(kAgain);
    runOptions.log = !options.Has(kNoLog);
    runOptions.maxFailures = static_cast<size_t>(options.Number(kMaxFailures, 0));
    const GivenUp givenUp = RunHandOver::Received();

    const std::vector<Document> documents = DocumentsOf(*records.files);
    RunHandOver handOver(lock);
    CallLimit limit(static_cast<DWORD>(options.Number(kTimeout, kDefaultTimeout)), handOver);
    BackSignRun run(session, *records.login, input.work, runOptions, givenUp, limit);
    handOver.Watch(run);
    run.Run(documents);

    TellStandIns();
    const size_t done = static_cast<size_t>(run.SignedNames().GetCount());
    TellResult(TextId::Summary, {NumberText(done), NumberText(documents.size())});
    if (!session.Plm().NotifyPLMSignForBackSignRet(run.SignedNames(), InText(kNameProperty),
                                                   InText(input.work), InText(returnPath))) {
        TellError(Outcome::Because(TextId::ReturnFileFailed), {ReturnFileOf(returnPath)});
        return kExitFailed;
    }
    Tell(TextId::ReturnFile, {ReturnFileOf(returnPath)});
    return ExitOf(run, documents.size());
}

/// The kept message lies in `folder`: the work folder, or a private one of a dry run.
int CheckAndSign(const RunInput& input, const Options& options, const CString& folder, RunLock* lock) {
    const CString returnPath = ReturnPath(options.Value(L"--return"));
    Session session;
    if (!session.Open(false)) {
        TellError(TextId::FrameworkFailed);
        return kExitFailed;
    }
    MessageRecords records;
    if (!StartMessage(session.Plm(), &CPLMInteract::StartSignForBackSign, input.message, folder, records)) {
        TellError(Outcome::Because(TextId::MessageRefused));
        return kExitRefused;
    }
    Preflight preflight(session, input.work, !options.Has(kNoLog));
    const bool ready = preflight.Check(DocumentsOf(*records.files));
    if (!lock) return ready ? preflight.Report(input, records) : kExitRefused;
    return ready ? SignAll(session, input, records, options, returnPath, *lock) : kExitRefused;
}

int DryRun(const RunInput& input, const Options& options) {
    // Private, since the library keeps a copy of every message that it reads.
    const TemporaryFolder folder;
    if (!folder.Path().IsEmpty()) return CheckAndSign(input, options, folder.Path(), nullptr);
    TellError(TextId::NoTemporaryFolder);
    return kExitFailed;
}

} // namespace

std::vector<OptionRule> BackSignRules() {
    return MessageRules({{L"--return", L"FILE", true},
                         {kAgain, nullptr, false},
                         {kNoLog, nullptr, false},
                         {kMaxFailures, L"N", false},
                         {kTimeout, L"SECONDS", false},
                         {kDryRun, nullptr, false}});
}

int RunBackSign(const Options& options) {
    // No box of the system may stop a run that nobody watches.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    RunInput input;
    if (!LoadRunInput(options, input)) return kExitRefused;
    const CString returnFile = ReturnFileOf(ReturnPath(options.Value(L"--return")));
    if (!Preflight::CheckPlaces(input.work, returnFile) || !Preflight::CheckSettings()) return kExitRefused;
    if (options.Has(kDryRun)) return DryRun(input, options);
    if (!PrepareWorkFolder(input)) return kExitRefused;
    RunLock lock(input.work);
    if (lock.State() == RunLock::Result::Held) return CheckAndSign(input, options, input.work, &lock);
    const bool busy = lock.State() == RunLock::Result::Busy;
    TellError(busy ? TextId::WorkFolderBusy : TextId::WorkFolderReadOnly, {input.work});
    return busy ? kExitBusy : kExitRefused;
}

} // namespace host
