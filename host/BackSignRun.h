// The silent run over the documents of a message.
#pragma once

#include <afxwin.h>
#include <afxcoll.h>

#include <vector>

#include "host/Document.h"
#include "host/Session.h"
#include "host/SignMarks.h"
#include "host/Texts.h"

namespace host {

class BackSignRun {
public:
    /// All arguments are borrowed. `work` is the documents' folder.
    BackSignRun(Session& session, const SLoginInfo& login, const CString& work);

    /// Takes every document as far as it gets and prints its line. Afterwards SignedNames() holds the names
    /// of those that were downloaded, signed and uploaded.
    void Run(const std::vector<Document>& documents);
    CStringList& SignedNames() { return m_signedNames; }

private:
    /// Signed, or the step that failed.
    TextId Process(const Document& document);
    TextId Sign(const Document& document);
    bool Download(const Document& document);
    bool Upload(const Document& document);
    /// Signed while signing is possible at all, else the reason why it isn't.
    TextId Connect();

    Session& m_session;
    const SLoginInfo& m_login;
    CString m_work;
    SignMarks m_marks;
    CStringList m_signedNames;
};

} // namespace host
