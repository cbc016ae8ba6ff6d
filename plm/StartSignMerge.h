// Merging of a further start-sign message (source) into the kept one (target): same signer, same steps, new
// documents only.
#pragma once

#include <afxwin.h>

#include "plm/StartSignMessage.h"

namespace varnoke {

/// Same user name; the password may have changed.
bool IsSameSigner(const SLoginInfo* source, const SLoginInfo* target);
/// Same properties in the same order, at least one step, and each with at least one property.
bool AreSameSteps(const SSignType* source, const SSignType* target);

/// The source's record when both messages have an equal one, else null.
OwnedRecord<SLoginInfo> MergeLoginInfo(IXMLDOMDocument* source, IXMLDOMDocument* target);
OwnedRecord<SSignType> MergeSignSteps(IXMLDOMDocument* source, IXMLDOMDocument* target);

/// Adds the source's new documents to the target and returns them, an empty list when there are none; null on
/// failure.
OwnedRecord<SSignType> MergeSignFiles(IXMLDOMDocument* source, IXMLDOMDocument* target);

/// Drops the source's documents whose file name ("FNAME") the target has.
void RemoveKeptDocuments(SSignType& source, const SSignType& target);
/// Adds every document that has properties to the target's document group; false when there is no such group.
bool AppendDocuments(IXMLDOMDocument* target, const SSignType& source);

/// Sets an attribute through an attribute map; false for an empty name or a missing argument.
bool AddAttribute(const wchar_t* name, const wchar_t* value, IXMLDOMNamedNodeMap* attributes,
                  IXMLDOMDocument* document);

/// Merges the message (XML text) into the kept one, which must exist and is rewritten only on success.
bool MergeStartSignMessage(const wchar_t* xml, const CString& workFolder, StartSignRecords& records);

} // namespace varnoke
