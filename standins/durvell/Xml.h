// XML documents of the system's parser.
#pragma once

#include <windows.h>
#include <msxml2.h>
#include <comdef.h>
#include <string>

namespace durvell {

// The headers of some compilers do not say which identifier belongs to which of these interfaces.
inline constexpr IID documentId = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};
using IXMLDOMDocument2Ptr = _com_ptr_t<_com_IIID<IXMLDOMDocument2, &documentId>>;
using IXMLDOMElementPtr = _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>>;
using IXMLDOMNodePtr = _com_ptr_t<_com_IIID<IXMLDOMNode, &IID_IXMLDOMNode>>;
using IXMLDOMNodeListPtr = _com_ptr_t<_com_IIID<IXMLDOMNodeList, &IID_IXMLDOMNodeList>>;
using InstructionPtr = _com_ptr_t<_com_IIID<IXMLDOMProcessingInstruction, &IID_IXMLDOMProcessingInstruction>>;

// An empty document that loads synchronously, refuses a DTD and fetches nothing from outside; null on
// failure.
IXMLDOMDocument2Ptr NewDocument();

// Null when the text or file is missing or not well formed.
IXMLDOMDocument2Ptr LoadXmlText(const std::wstring& text);
IXMLDOMDocument2Ptr LoadXmlFile(const std::wstring& path);

// The nodes that an XPath below the context selects; null on failure.
IXMLDOMNodeListPtr Select(IXMLDOMNode* context, const wchar_t* xpath);
IXMLDOMNodePtr ItemAt(IXMLDOMNodeList* list, long index);
long CountOf(IXMLDOMNodeList* list);

// An attribute's text; false when the node has no such attribute.
bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value);

} // namespace durvell
