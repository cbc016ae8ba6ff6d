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

class CBackSignRun {
public:
    /// All arguments are borrowed. `work` is the documents' folder.
    CBackSignRun(CSession& session, const SLoginInfo& login, const CString& work);

    /// Takes every document as far as it gets and prints its line. Afterwards SignedNames() holds the names
    /// of those that were downloaded, signed and uploaded.
    void Run(const std::vector<CDocument>& documents);
    CStringList& SignedNames() { return m_signedNames; }

private:
    /// Signed, or the step that failed.
    EText Process(const CDocument& document);
    EText Sign(const CDocument& document);
    bool Download(const CDocument& document);
    bool Upload(const CDocument& document);
    /// Signed while signing is possible at all, else the reason why it isn't.
    EText Connect();

    CSession& m_session;
    const SLoginInfo& m_login;
    CString m_strWork;
    CSignMarks m_marks;
    CStringList m_signedNames;
};

} // namespace host
