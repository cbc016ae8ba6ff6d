// Finding nodes and attributes in XML documents.
#pragma once

#include <string>
#include <vector>

#include "standins/common/XmlDocument.h"

namespace durvell {

using standins::XmlElementPtr;
using standins::XmlNodePtr;

// The nodes that an XPath below the context selects; none on failure.
std::vector<XmlNodePtr> Select(IXMLDOMNode* context, const wchar_t* xpath);

// An attribute's text; false when the node has no such attribute.
bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value);

} // namespace durvell
