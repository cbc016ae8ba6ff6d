// What is kept beside a signed document: its sign tags and its entry in the sign log.
#pragma once

#include <afxwin.h>

#include "host/Document.h"
#include "host/RecordCopy.h"
#include "varnoke/PLMInteract.h"

namespace host {

class SignMarks {
public:
    /// `plm` is borrowed; `folder` holds the documents. A log that an interrupted run was about to send comes
    /// back.
    SignMarks(CPLMInteract& plm, const CString& folder);
    ~SignMarks();
    SignMarks(const SignMarks&) = delete;
    SignMarks& operator=(const SignMarks&) = delete;

    /// Marks the document as signed and logs the signature, with the signer and the date where the message
    /// left them open. False when the log entry could not be written.
    bool Note(const Document& document, const SSignInfo& info);
    /// Takes the marks of the document noted last back, because it could not be returned to the server: the
    /// log must not tell the server of a signature that it does not have. An entry of an earlier run, which
    /// the new one had replaced, is there again.
    void Withdraw(const Document& document);
    /// Sends the log to the server if there is one. The library gives a log up that the server refuses; here
    /// it is put back, so that the next run sends it. False when it was not sent.
    bool SendLog();

private:
    bool WriteLog(const Document& document, const SSignInfo& info);
    void SetTags(const Document& document, long signTag, long logTag);

    CPLMInteract& m_plm;
    CString m_folder;
    RecordCopy m_before; ///< the record before the last entry
    RecordCopy m_unsent; ///< the record while it is sent
    bool m_logged = false;
};

} // namespace host
