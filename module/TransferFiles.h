// The documents of a transfer list that can be transferred.
#pragma once

#include "module/ModulePaths.h"
#include "varnoke/Elements.h"
#include "varnoke/SignRecords.h"

namespace varnoke {

/// Calls transfer(item, local path) for each item that has both names, until it gives false.
template <class Transfer>
void ForEachFile(const SSignFileDUL& list, Transfer transfer) {
    const CString prefix = JoinPath(list.m_strFolder, L"");
    for (SSignFileDULItem* item : Elements(list.m_lstItem)) {
        if (item->m_strRemoteName.IsEmpty() || item->m_strLocalName.IsEmpty()) continue;
        if (!transfer(*item, prefix + item->m_strLocalName)) return;
    }
}

} // namespace varnoke
