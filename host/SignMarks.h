// What is kept beside a signed document: its sign tags and its entry in the sign log.
#pragma once

#include <afxwin.h>

#include "host/Document.h"
#include "host/RecordCopy.h"
#include "plm/PLMInteract.h"

namespace host {

class CSignMarks {
public:
    /// `plm` is borrowed; `folder` holds the documents. A log that an interrupted run was about to send comes
    /// back.
    CSignMarks(CPLMInteract& plm, const CString& folder);
    ~CSignMarks();
    CSignMarks(const CSignMarks&) = delete;
    CSignMarks& operator=(const CSignMarks&) = delete;

    /// Marks the document as signed and logs the signature, with the signer and the date where the message
    /// left them open. False when the log entry could not be written.
    bool Note(const CDocument& document, const SSignInfo& info);
    /// Takes the marks of the document noted last back, because it could not be returned to the server: the
    /// log must not tell the server of a signature that it does not have. An entry of an earlier run, which
    /// the new one had replaced, is there again.
    void Withdraw(const CDocument& document);
    /// Sends the log to the server if there is one. The library gives a log up that the server refuses; here
    /// it is put back, so that the next run sends it. False when it was not sent.
    bool SendLog();

private:
    bool WriteLog(const CDocument& document, const SSignInfo& info);
    void SetTags(const CDocument& document, long signTag, long logTag);

    CPLMInteract& m_plm;
    CString m_strFolder;
    CRecordCopy m_before; ///< the record before the last entry
    CRecordCopy m_unsent; ///< the record while it is sent
    bool m_bLogged = false;
};

} // namespace host
