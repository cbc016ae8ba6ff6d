// The parser library owns the record's format. How a record grows by an entry is seen from what that library
// writes for two small models: one with a stand-by entry, and one with the new entry behind it. What they
// have in common precedes the new entry; the rest of the first is how a record ends. Whether this holds for a
// record is tried once, by having the library read and write the result.
#include "plm/RecordAppend.h"

#include <algorithm>

#include "base/WholeFile.h"
#include "module/BstrText.h"
#include "plm/SignDataFolder.h"
#include "plm/SignRecordFile.h"

using namespace QORMODEL;
using _com_util::CheckError;

namespace varnoke {

namespace {

/// The record's last bytes and what takes their place.
struct Splice {
    std::string oldTail;
    std::string newTail;
};

// Whether the parser library's files are such that this never works; then it isn't tried again.
bool g_unsuitable = false;

bool EndsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void AddStandBy(IQORDataModel* model, const CString& type) {
    IQORDataEntryPtr entry;
    CheckError(model->CreateEntry(ToBstr(type), &entry));
    CheckError(entry->SetState(_bstr_t(L"N")));
    CheckError(model->AddEntry(entry));
}

bool MakeSplice(KnownRecord& known, const CString& signDataFolder, const SignLogSource& source,
                Splice& splice) {
    const IQORDataModelPtr model = NewDataModel();
    if (!model) return false;
    AddStandBy(model, source.entryType);
    if (known.standBy.empty()) known.standBy = WrittenRecord(model, signDataFolder);
    AddEntry(model, source);
    const std::string both = WrittenRecord(model, signDataFolder);
    const std::string& one = known.standBy;
    const size_t common =
        std::mismatch(one.begin(), one.begin() + (std::min)(one.size(), both.size()), both.begin()).first -
        one.begin();
    splice = {one.substr(common), both.substr(common)};
    return !splice.oldTail.empty() && splice.newTail.size() > splice.oldTail.size() &&
           EndsWith(splice.newTail, splice.oldTail) && EndsWith(known.tail, splice.oldTail);
}

// Replaces the record by the spliced one if the parser library reads all entries from it and would write it
// just so.
bool ReplaceIfSame(const KnownRecord& known, const CString& signDataFolder, const Splice& splice) {
    const CString path = SignRecordPath(signDataFolder);
    std::string bytes;
    if (base::ReadWholeFile(path, bytes) != base::ReadResult::Done) return false;
    bytes.replace(bytes.size() - splice.oldTail.size(), splice.oldTail.size(), splice.newTail);
    base::ReplacedFile file(path);
    const IQORDataModelPtr model = NewDataModel();
    if (!model || !file.Write(bytes)) return false;
    long count = 0;
    if (ParseRecord(file.TemporaryPath().c_str(), model)) CheckError(model->GetCount(&count));
    g_unsuitable = count != known.index.Count() + 1 || WrittenRecord(model, signDataFolder) != bytes;
    return !g_unsuitable && file.Replace();
}

// Changes the end of the open record.
bool WriteSplice(const KnownRecord& known, HANDLE file, const Splice& splice, RecordLock& lock) {
    const TailChange change = {known.size - splice.oldTail.size(), splice.newTail};
    if (!lock.Announce(change)) return false;
    bool torn = false;
    const bool changed = ChangeTail(file, change, splice.oldTail, torn);
    if (torn) {
        lock.Leave();
        _com_issue_error(STG_E_WRITEFAULT);
    }
    return changed;
}

} // namespace

bool LogInPlace(KnownRecord& known, const CString& signDataFolder, const SignLogSource& source,
                RecordLock& lock) {
    const CString path = SignRecordPath(signDataFolder);
    if (known.path != path.GetString()) return false;
    MakeWritable(path);
    base::FileHandle file =
        base::OwnFile(::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file || !known.IsCurrent(file.get())) return false;
    const LogOutcome outcome = known.index.OutcomeOf(source);
    if (outcome == LogOutcome::Logged) return true;
    if (outcome == LogOutcome::Rewritten || known.form == RecordForm::Found || g_unsuitable ||
        known.index.LastType() != source.entryType.GetString())
        return false;

    Splice splice;
    if (!MakeSplice(known, signDataFolder, source, splice)) return false;
    if (known.form == RecordForm::Proven) {
        if (!WriteSplice(known, file.get(), splice, lock)) return false;
        file.reset();
    } else {
        file.reset();
        if (!ReplaceIfSame(known, signDataFolder, splice)) return false;
        known.form = RecordForm::Proven;
    }
    known.index.Add(source);
    known.Note(path);
    return true;
}

void FinishAnnounced(const RecordLock& lock, const CString& recordPath) {
    TailChange change;
    if (!lock.ReadAnnounced(change)) return;
    const IQORDataModelPtr model = NewDataModel();
    if (!model || ParseRecord(recordPath, model)) return;
    const base::FileHandle file =
        base::OwnFile(::CreateFileW(recordPath, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    bool torn = false;
    if (file) ChangeTail(file.get(), change, change.bytes, torn);
}

} // namespace varnoke
