// The sign log: which entries a signature or a deletion leaves in the record, and its way to the server.
#include "plm/SignLog.h"

#include "module/BstrText.h"
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
        if (ReadProperty(entry, L"QORMROLE") != source.role) continue;
        const bool deletion = ReadProperty(entry, L"QORMTYPE") == L"D";
        IQORDataEntryPtr& place = deletion ? logged.deletion : logged.signature;
        if (place) Drop(logged, place);
        place = entry;
    }
    return logged;
}

// Brings the model to its intended state; false when it is in it already.
bool Log(IQORDataModel* model, const SignLogSource& source) {
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

} // namespace

long WriteDelOrSignLogToLocal(CModelConfig& config, const SSignObj* obj, const CString& folder,
                              const CString& kind) {
    if (!obj || folder.IsEmpty() || (kind != L"N" && kind != L"D")) return 0;
    const IQORObjConfigPtr local = config.GetLocalObjectConfig();
    const IQORObjMapConfigPtr map = config.GetMapObjectConfig();
    const IQORObjConfigPtr server = config.GetServerObjectConfig();
    if (!local || !map || !server) return 0;

    const SignLogSource source(*obj, kind, local, map);
    SignRecordFile record;
    if (!record.Create()) return 0;
    record.Read(folder);
    if (!Log(record.Model(), source)) return 1;
    return record.Save() ? 1 : 0;
}

long WriteSignLogToServer(const CString& folder) {
    if (folder.IsEmpty()) return 1;
    const CString signDataFolder = MakeSignDataFolder(folder);
    const CString record = SignRecordPath(signDataFolder);
    const int result = dvl_SaveToServer(record, SignWorkPath(signDataFolder));
    // The log is sent once: it goes even when the server refused it, read-only or not.
    MakeWritable(record);
    ::DeleteFileW(record);
    return result != 0 ? 1 : 0;
}

} // namespace varnoke
