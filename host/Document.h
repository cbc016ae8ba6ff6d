// One document of a start-sign message, as the host sees it.
#pragma once

#include <afxwin.h>

#include <vector>

#include "host/DocumentName.h"
#include "host/Records.h"

namespace host {

/// Property of a document that holds its file name in the work folder; the result file is keyed by it too.
constexpr wchar_t kNameProperty[] = L"FNAME";

/// The first value of a property, regardless of the name's case; `otherwise` without one or for an empty one.
CString PropertyNamed(const SSignObj& object, const wchar_t* name, const CString& otherwise);

class Document {
public:
    /// `object` is borrowed from the message's records, which must outlive this.
    explicit Document(const SSignObj& object);

    const SSignObj& Object() const { return *m_object; }
    const CString& Name() const { return m_name; }
    /// "LOCATION", the server's name of the file; the file name without one.
    const CString& RemoteName() const { return m_remoteName; }
    /// "ID"; the file name without one, which identifies the document as well.
    const CString& Id() const { return m_id; }
    /// "SIGN_ROLE", the role in which the document is signed; the designer's without one.
    const CString& Role() const { return m_role; }

    /// Why the document is refused; Ready for one that may be fetched.
    TextId Fault() const { return CheckDocumentName(m_name); }
    /// All values of the name property: the result file finds a document by any of them.
    const std::vector<CString>& AllNames() const { return m_names; }

private:
    const SSignObj* m_object; // weak
    CString m_name;
    CString m_remoteName;
    CString m_id;
    CString m_role;
    std::vector<CString> m_names;
};

/// The documents of a message, in message order.
std::vector<Document> DocumentsOf(const SSignType& files);

} // namespace host
