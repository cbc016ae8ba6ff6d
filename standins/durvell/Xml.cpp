// Finding nodes and attributes in XML documents.
#include "standins/durvell/Xml.h"

namespace durvell {

XmlNodeListPtr Select(IXMLDOMNode* context, const wchar_t* xpath) {
    XmlNodeListPtr list;
    context->selectNodes(_bstr_t(xpath), &list);
    return list;
}

XmlNodePtr ItemAt(IXMLDOMNodeList* list, long index) {
    XmlNodePtr node;
    list->get_item(index, &node);
    return node;
}

long CountOf(IXMLDOMNodeList* list) {
    long count = 0;
    if (list) list->get_length(&count);
    return count;
}

bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value) {
    const XmlElementPtr element(node);
    if (!element) return false;
    _variant_t text;
    if (element->getAttribute(_bstr_t(name), &text) != S_OK || text.vt != VT_BSTR) return false;
    value->assign(text.bstrVal, ::SysStringLen(text.bstrVal));
    return true;
}

} // namespace durvell
