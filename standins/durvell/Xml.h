// Finding nodes and attributes in XML documents.
#pragma once

#include <string>

#include "standins/common/XmlDocument.h"

namespace durvell {

using standins::XmlElementPtr;
using standins::XmlNodePtr;
using XmlNodeListPtr = _com_ptr_t<_com_IIID<IXMLDOMNodeList, &IID_IXMLDOMNodeList>>;

// The nodes that an XPath below the context selects; null on failure.
XmlNodeListPtr Select(IXMLDOMNode* context, const wchar_t* xpath);
XmlNodePtr ItemAt(IXMLDOMNodeList* list, long index);
long CountOf(IXMLDOMNodeList* list);

// An attribute's text; false when the node has no such attribute.
bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value);

} // namespace durvell
