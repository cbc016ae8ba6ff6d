// What is kept beside a signed document: its sign tags and its entry in the sign log.
#pragma once

#include <afxwin.h>

#include "host/Document.h"
#include "plm/PLMInteract.h"

namespace host {

class CSignMarks {
public:
    /// `plm` is borrowed; `folder` holds the documents.
    CSignMarks(CPLMInteract& plm, const CString& folder) : m_plm(plm), m_strFolder(folder) {}

    /// Marks the document as signed and logs the signature, with the signer and the date where the message
    /// left them open. False when the log entry could not be written.
    bool Note(const CDocument& document, const SSignInfo& info);
    /// Takes the marks back, for a signed document that could not be returned to the server: the log must not
    /// tell the server of a signature that it does not have.
    void Withdraw(const CDocument& document);
    /// Sends the log to the server if there is one. The library gives a log up that the server refuses; here
    /// it is put back, so that the next run sends it. False when it was refused.
    bool SendLog();

private:
    bool WriteLog(const CDocument& document, const wchar_t* kind);
    void SetTags(const CDocument& document, long signTag, long logTag);

    CPLMInteract& m_plm;
    CString m_strFolder;
};

} // namespace host
