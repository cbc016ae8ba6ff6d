// XML documents of the system's parser, as the stand-ins load them.
#pragma once

#include <windows.h>
#include <msxml2.h>
#include <comdef.h>
#include <string>

namespace standins {

// The headers of some compilers do not say which identifier belongs to which of these interfaces.
inline constexpr IID kXmlDocumentId = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
using XmlDocumentPtr = _com_ptr_t<_com_IIID<IXMLDOMDocument2, &kXmlDocumentId>>;
using XmlElementPtr = _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>>;
using XmlNodePtr = _com_ptr_t<_com_IIID<IXMLDOMNode, &IID_IXMLDOMNode>>;

// These need COM on the calling thread and throw _com_error when the parser itself fails.

// An empty document that loads synchronously, refuses a DTD and fetches nothing from outside.
XmlDocumentPtr NewXmlDocument();

// Null when the text is not well formed or has a DTD.
XmlDocumentPtr LoadXmlText(const std::wstring& text);
// The same for a file; null also when it can't be read.
XmlDocumentPtr LoadXmlFile(const std::wstring& path);

} // namespace standins
