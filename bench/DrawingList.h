// A list of the drawings that Workspace creates.
#pragma once

#include <afxwin.h>

#include "bench/Workspace.h"
#include "varnoke/OwnedRecord.h"

namespace bench {

/// `count` documents of the folder, each with its file name as its name on the server, too.
inline varnoke::OwnedRecord<SSignFileDUL> DrawingList(const std::wstring& folder, int count) {
    varnoke::OwnedRecord<SSignFileDUL> list(new SSignFileDUL);
    list->m_strFolder = folder.c_str();
    for (int number = 0; number < count; ++number) {
        auto* item = new SSignFileDULItem;
        list->m_lstItem.AddTail(item);
        item->m_strRemoteName = item->m_strLocalName = Workspace::DrawingName(number).c_str();
    }
    return list;
}

} // namespace bench
