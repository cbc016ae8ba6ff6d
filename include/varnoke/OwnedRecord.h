// Ownership of the records that the library hands out: each goes back through its own release function.
#pragma once

#include <memory>

#include "varnoke/SignRecords.h"

namespace varnoke {

/// Deletes every element of a list, in list order, and empties the list. Null elements are skipped.
template <class T>
void DeleteElements(CList<T*, T*>& list) {
    while (!list.IsEmpty()) {
        delete list.RemoveHead();
    }
}

struct RecordReleaser {
    void operator()(SLoginInfo* record) const { Cmn_ReleaseLoginInfo(record); }
    void operator()(SSignType* record) const { Cmn_ReleaseSignType(record); }
    void operator()(SSignFileDUL* record) const { Cmn_ReleaseSignFileDUL(record); }
    void operator()(SSignInfo* record) const { Cmn_ReleaseSignInfo(record); }

    void operator()(SSignObj* object) const {
        DeleteElements(*object);
        delete object;
    }
};

/// A record with everything below it; `release()` gives it away.
template <class Record>
using OwnedRecord = std::unique_ptr<Record, RecordReleaser>;

} // namespace varnoke
