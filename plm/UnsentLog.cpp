// The sign log on its way to the server, and for those who look at it before.
#include "module/BstrText.h"
#include "module/DocumentCopy.h"
#include "base/Paths.h"
#include "neighbours/durvell.h"
#include "plm/RecordAppend.h"
#include "plm/SignDataFolder.h"
#include "plm/SignLog.h"

#include "module/Failure.h"
#include "plm/SignRecordFile.h"

using namespace QORMODEL;
using _com_util::CheckError;

namespace varnoke {

namespace {

OwnedRecord<SSignObj> ObjectOf(IQORDataEntry* entry) {
    OwnedRecord<SSignObj> object(new SSignObj);
    long count = 0;
    CheckError(entry->GetPropertyCount(&count));
    for (long index = 0; index < count; ++index) {
        _bstr_t name;
        _bstr_t value;
        CheckError(entry->GetPropertyName(index, name.GetAddress()));
        CheckError(entry->GetProperty(name, value.GetAddress()));
        object->AddTail(new SSignPro{ToText(name), ToText(value)});
    }
    return object;
}

bool Send(const CString& record, const CString& signDataFolder) {
    if (!base::FileExists(record)) return true;
    const int result = dvl_SaveToServer(record, SignWorkPath(signDataFolder));
    if (result != 0) return Fail(Cause::SignLogNotSent, record, result);
    MakeWritable(record);
    return ::DeleteFileW(record) != FALSE;
}

} // namespace

long SendSignLog(const CString& folder) {
    if (folder.IsEmpty()) return 1;
    const CString signDataFolder = MakeSignDataFolder(folder);
    const RecordLock lock(signDataFolder);
    if (!lock.IsHeld()) return 1;
    const CString record = SignRecordPath(signDataFolder);
    FinishAnnounced(lock, record);
    TakeKnownRecord();
    ::DeleteFileW(signDataFolder + L"DocSignRecord.before.xml");
    const bool sent =
        Send(signDataFolder + L"DocSignRecord.unsent.xml", signDataFolder) && Send(record, signDataFolder);
    return sent ? 0 : 1;
}

OwnedRecord<SSignType> ReadUnsentLog(const CString& folder) {
    OwnedRecord<SSignType> entries(new SSignType);
    const CString record = SignRecordPath(MakeSignDataFolder(folder));
    if (!base::FileExists(record)) return entries;
    const IQORDataModelPtr model = NewDataModel();
    if (!model || !ParseRecord(record, model)) return nullptr;
    long count = 0;
    CheckError(model->GetCount(&count));
    for (long index = 0; index < count; ++index) {
        IQORDataEntryPtr entry;
        CheckError(model->GetEntry(index, &entry));
        AppendObject(*entries, ObjectOf(entry));
    }
    return entries;
}

} // namespace varnoke
