// XML documents of the system's parser.
#include "standins/durvell/Xml.h"

namespace durvell {

IXMLDOMDocument2Ptr NewDocument() {
    IXMLDOMDocument2Ptr document;
    if (FAILED(document.CreateInstance(L"Msxml2.DOMDocument.6.0", nullptr, CLSCTX_INPROC_SERVER)))
        return nullptr;
    document->put_async(VARIANT_FALSE);
    document->put_validateOnParse(VARIANT_FALSE);
    document->put_resolveExternals(VARIANT_FALSE);
    document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true));
    return document;
}

// Not every version of the parser refuses a DTD by itself.
static IXMLDOMDocument2Ptr Loaded(const IXMLDOMDocument2Ptr& document, HRESULT status, VARIANT_BOOL loaded) {
    if (status != S_OK || !loaded) return nullptr;
    _com_ptr_t<_com_IIID<IXMLDOMDocumentType, &IID_IXMLDOMDocumentType>> documentType;
    document->get_doctype(&documentType);
    return documentType ? IXMLDOMDocument2Ptr() : document;
}

IXMLDOMDocument2Ptr LoadXmlText(const std::wstring& text) {
    const IXMLDOMDocument2Ptr document = NewDocument();
    if (!document) return nullptr;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT status = document->loadXML(_bstr_t(text.c_str()), &loaded);
    return Loaded(document, status, loaded);
}

IXMLDOMDocument2Ptr LoadXmlFile(const std::wstring& path) {
    const IXMLDOMDocument2Ptr document = NewDocument();
    if (!document) return nullptr;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT status = document->load(_variant_t(path.c_str()), &loaded);
    return Loaded(document, status, loaded);
}

IXMLDOMNodeListPtr Select(IXMLDOMNode* context, const wchar_t* xpath) {
    IXMLDOMNodeListPtr list;
    context->selectNodes(_bstr_t(xpath), &list);
    return list;
}

IXMLDOMNodePtr ItemAt(IXMLDOMNodeList* list, long index) {
    IXMLDOMNodePtr node;
    list->get_item(index, &node);
    return node;
}

long CountOf(IXMLDOMNodeList* list) {
    long count = 0;
    if (list) list->get_length(&count);
    return count;
}

bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value) {
    const IXMLDOMElementPtr element(node);
    if (!element) return false;
    _variant_t text;
    if (element->getAttribute(_bstr_t(name), &text) != S_OK || text.vt != VT_BSTR) return false;
    value->assign(text.bstrVal, ::SysStringLen(text.bstrVal));
    return true;
}

} // namespace durvell
