// Reading of the start-sign message: the signer's login, the sign steps and the documents to sign.
#pragma once

#include <afxwin.h>

#include "varnoke/OwnedRecord.h"
#include "plm/XmlDocument.h"

namespace varnoke {

/// The records of one message, owned until the host takes them.
struct StartSignRecords {
    OwnedRecord<SLoginInfo> login;
    OwnedRecord<SSignType> steps;
    OwnedRecord<SSignType> files;
};

/// The three readers give null for a message whose part is missing or incomplete.
OwnedRecord<SLoginInfo> ReadLoginInfo(IXMLDOMDocument* document);
OwnedRecord<SSignType> ReadSignSteps(IXMLDOMDocument* document);
OwnedRecord<SSignType> ReadSignFiles(IXMLDOMDocument* document);

/// The first group that is neither the login nor the steps, and its identifier; null when there is none
/// before a group without an identifier.
base::XmlNodePtr FindDocumentGroup(IXMLDOMDocument* document, CString& id);

/// Path of the kept message; the folder is not created.
CString KeptMessagePath(const CString& workFolder);

/// A message (XML text) and the kept one as documents; null, with the cause stated, on failure.
base::XmlDocumentPtr LoadNewMessage(const wchar_t* xml);
base::XmlDocumentPtr LoadKeptMessage(const CString& workFolder);

/// Keeps the message (XML text) in the work folder, then reads it. A well-formed message replaces the kept
/// one even when it turns out to be incomplete.
bool ParseStartSignMessage(const wchar_t* xml, const CString& workFolder, StartSignRecords& records);

} // namespace varnoke
