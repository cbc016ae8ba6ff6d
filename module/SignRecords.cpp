// Release of the records that cross the exported interface.
#include "varnoke/SignRecords.h"

#include "module/Guarded.h"
#include "varnoke/OwnedRecord.h"

namespace {

void DeleteRecord(SLoginInfo* record) {
    delete record;
}

void DeleteRecord(SSignInfo* record) {
    delete record;
}

void DeleteRecord(SSignType* record) {
    while (!record->m_lstObj.IsEmpty()) {
        // Taken off the list first, so that nothing is released twice if releasing it fails.
        const varnoke::OwnedRecord<SSignObj> object(record->m_lstObj.RemoveHead());
    }
    delete record;
}

void DeleteRecord(SSignFileDUL* record) {
    varnoke::DeleteElements(record->m_lstItem);
    delete record;
}

/// No operation of its own: a cause that the host has yet to ask for stays.
template <class Record>
long Release(Record* record) {
    return varnoke::Guarded(
        0L,
        [record] {
            if (record) DeleteRecord(record);
            return record ? 1L : 0L;
        },
        nullptr);
}

} // namespace

long Cmn_ReleaseLoginInfo(SLoginInfo* record) {
    return Release(record);
}

long Cmn_ReleaseSignType(SSignType* record) {
    return Release(record);
}

long Cmn_ReleaseSignFileDUL(SSignFileDUL* record) {
    return Release(record);
}

long Cmn_ReleaseSignInfo(SSignInfo* record) {
    return Release(record);
}
