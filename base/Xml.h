// Documents of the system's XML parser, without references to the outside. These functions need COM on the
// calling thread and raise _com_error when the parser itself fails.
#pragma once

#include <windows.h>
#include <comdef.h>
#include <msxml2.h>

#include <string>

#include "base/Text.h"

namespace base {

// The headers of some compilers do not say which identifier belongs to this interface.
inline constexpr IID kXmlDocumentId = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

using XmlDocumentPtr = _com_ptr_t<_com_IIID<IXMLDOMDocument2, &kXmlDocumentId>>;
using XmlNodePtr = _com_ptr_t<_com_IIID<IXMLDOMNode, &IID_IXMLDOMNode>>;
using XmlElementPtr = _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>>;
using XmlNodeListPtr = _com_ptr_t<_com_IIID<IXMLDOMNodeList, &IID_IXMLDOMNodeList>>;

/// An empty document that loads while its caller waits, refuses a document type definition, fetches nothing
/// and validates nothing.
XmlDocumentPtr NewXmlDocument();

/// Where and why the parser gave up.
struct XmlFault {
    long line = 0; ///< from 1; 0 when it was not the parser that refused the document
    long column = 0;
    std::wstring reason;
};

/// Null for a text that is not well-formed or has a document type definition. Its XML declaration, if any,
/// must not name an encoding other than UTF-16.
XmlDocumentPtr LoadXmlText(TextRef text, XmlFault* fault = nullptr);

/// The same for a file, whose encoding the parser finds out; null also when the file can't be read.
XmlDocumentPtr LoadXmlFile(TextRef path, XmlFault* fault = nullptr);

/// Puts the document, in the encoding that it declares, in the place of the file as WriteWholeFile does;
/// false when that fails.
bool SaveXml(IXMLDOMDocument* document, TextRef path);

} // namespace base
