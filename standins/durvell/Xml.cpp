// Finding nodes and attributes in XML documents.
#include "standins/durvell/Xml.h"

namespace durvell {

std::vector<XmlNodePtr> Select(IXMLDOMNode* context, const wchar_t* xpath) {
    std::vector<XmlNodePtr> nodes;
    _com_ptr_t<_com_IIID<IXMLDOMNodeList, &IID_IXMLDOMNodeList>> list;
    if (FAILED(context->selectNodes(_bstr_t(xpath), &list)) || !list) return nodes;
    // One after the other: the list finds a node by its number from the first one on.
    for (XmlNodePtr node; list->nextNode(&node) == S_OK;)
        nodes.push_back(node);
    return nodes;
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
