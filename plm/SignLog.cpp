// The sign log: which entries a signature or a deletion leaves in the record, and its way to the server.
#include "plm/SignLog.h"

#include <utility>

#include "module/BstrText.h"
#include "module/Failure.h"
#include "plm/RecordAppend.h"
#include "plm/SignLogEntry.h"
#include "plm/SignRecordFile.h"
#include "plm/SignDataFolder.h"
#include "neighbours/durvell.h"

using namespace QORMODEL;
using _com_util::CheckError;

namespace varnoke {

namespace {

// What the record holds for one document and role: at most one logged signature and one logged deletion.
struct LoggedEntries {
    IQORDataEntryPtr signature;
    IQORDataEntryPtr deletion;
    bool dropped = false; // whether entries were taken out of the model
};

void Drop(LoggedEntries& logged, IQORDataEntryPtr& entry) {
    CheckError(entry->Delete());
    entry = nullptr;
    logged.dropped = true;
}

// Finds the entries of a document and role. A record made elsewhere may hold several of a kind: the latest
// one counts, the others are dropped.
LoggedEntries FindLogged(IQORDataModel* model, const SignLogSource& source) {
    IQORDataEntriesPtr entries;
    CheckError(model->FindEntries(ToBstr(source.entryType), _bstr_t(L"QORMFILEID"), ToBstr(source.documentId),
                                  &entries));
    long count = 0;
    CheckError(entries->GetCount(&count));
    LoggedEntries logged;
    for (long index = 0; index < count; ++index) {
        IQORDataEntryPtr entry;
        CheckError(entries->GetItem(index, &entry));
        if (EntryProperty(entry, L"QORMROLE") != source.role) continue;
        const bool deletion = EntryProperty(entry, L"QORMTYPE") == L"D";
        IQORDataEntryPtr& place = deletion ? logged.deletion : logged.signature;
        if (place) Drop(logged, place);
        place = entry;
    }
    return logged;
}

// Brings the model to its intended state; false when it is in it already.
bool LogInModel(IQORDataModel* model, const SignLogSource& source) {
    LoggedEntries logged = FindLogged(model, source);
    const bool signature = source.kind == L"N";
    const bool replaces = logged.signature;
    // A deletion cancels the unsent signature; a further signature takes its place, so that the latest values
    // are the ones sent.
    if (replaces) Drop(logged, logged.signature);
    if (signature || (!replaces && !logged.deletion)) {
        AddEntry(model, source);
        return true;
    }
    return logged.dropped;
}

// Reads and, where the entry asks for it, writes the whole record.
bool LogAnew(KnownRecord& known, const CString& signDataFolder, const SignLogSource& source) {
    known = KnownRecord();
    SignRecordFile record(signDataFolder);
    if (!record.Read()) return Fail(Cause::DataModelMissing);
    const bool changed = LogInModel(record.Model(), source);
    known.index.Read(record.Model());
    if (changed && !record.Save())
        return FailWithLastError(Cause::SignLogNotWritten, SignRecordPath(signDataFolder));
    known.form = changed ? RecordForm::Written : RecordForm::Found;
    known.Note(SignRecordPath(signDataFolder));
    return true;
}

// What sending gives for a failure.
long Refused(Cause cause, const wchar_t* detail, long result = 0) {
    Fail(cause, detail, result);
    return 1;
}

} // namespace

long WriteDelOrSignLogToLocal(CModelConfig& config, const SSignObj* obj, const CString& folder,
                              const CString& kind) {
    if (!obj || folder.IsEmpty() || (kind != L"N" && kind != L"D")) return Fail(Cause::ArgumentMissing);
    const IQORObjConfigPtr local = config.GetLocalObjectConfig();
    const IQORObjMapConfigPtr map = config.GetMapObjectConfig();
    const IQORObjConfigPtr server = config.GetServerObjectConfig();
    if (!local || !map || !server) return 0;

    const SignLogSource source(*obj, kind, local, map);
    const CString signDataFolder = MakeSignDataFolder(folder);
    RecordLock lock(signDataFolder);
    if (!lock.IsHeld())
        return Fail(lock.IsBusy() ? Cause::SignLogBusy : Cause::SignLogNotWritten, signDataFolder);
    FinishAnnounced(lock, SignRecordPath(signDataFolder));
    KnownRecord known = TakeKnownRecord();
    if (!LogInPlace(known, signDataFolder, source, lock) && !LogAnew(known, signDataFolder, source)) return 0;
    KeepKnownRecord(std::move(known));
    return 1;
}

long WriteSignLogToServer(const CString& folder) {
    if (folder.IsEmpty()) return Refused(Cause::ArgumentMissing, L"folder");
    const CString signDataFolder = MakeSignDataFolder(folder);
    const CString record = SignRecordPath(signDataFolder);
    const RecordLock lock(signDataFolder);
    // Without a lock there is either no folder, which the server may say, or an entry being written.
    if (lock.IsBusy()) return Refused(Cause::SignLogBusy, record);
    if (lock.IsHeld()) FinishAnnounced(lock, record);
    TakeKnownRecord();
    const int result = dvl_SaveToServer(record, SignWorkPath(signDataFolder));
    // The log is sent once: it goes even when the server refused it, read-only or not.
    MakeWritable(record);
    ::DeleteFileW(record);
    return result == 0 ? 0 : Refused(Cause::SignLogNotSent, record, result);
}

} // namespace varnoke
