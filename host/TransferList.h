// The list with which one document goes through the library's transfers.
#pragma once

#include <afxwin.h>

#include "host/Document.h"

namespace host {

/// A list of its own for every document: the library's silent download stops at the first item that fails,
/// and the result of its upload is that of the last item only.
class TransferList {
public:
    TransferList(const CString& folder, const Document& document) {
        m_item.m_strRemoteName = document.RemoteName();
        m_item.m_strLocalName = document.Name();
        m_list.m_strFolder = folder;
        m_list.m_lstItem.AddTail(&m_item);
    }
    TransferList& operator=(TransferList&&) = delete;

    /// For one library call at a time; forgets the state of the transfer before.
    SSignFileDUL* Start() {
        m_item.m_nState = 0;
        return &m_list;
    }
    /// Whether the transfer moved the file. The library's own result also calls a skipped item a success.
    bool Moved() const { return m_item.m_nState == 1; }
    SSignFileDUL* List() { return &m_list; }

private:
    SSignFileDULItem m_item;
    SSignFileDUL m_list;
};

} // namespace host
