// The list of one document's transfers.
#include <afxwin.h>

#include "host/TransferList.h"

namespace host {

TransferList::TransferList(const CString& folder, const Document& document) {
    m_item.m_strRemoteName = document.RemoteName();
    m_item.m_strLocalName = document.Name();
    m_list.m_strFolder = folder;
    m_list.m_lstItem.AddTail(&m_item);
}

SSignFileDUL* TransferList::Start() {
    m_item.m_nState = 0;
    return &m_list;
}

} // namespace host
