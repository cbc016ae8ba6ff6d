// Walks over the nodes of a document.
#include <afxwin.h>

#include "plm/XmlDocument.h"

#include <cwchar>
#include <cwctype>

namespace varnoke {

namespace {

/// The text behind its XML declaration: an encoding named there is that of a file, while these are
/// characters, and the parser would take it over into the file that it saves.
const wchar_t* WithoutDeclaration(const wchar_t* text) {
    if (wcsncmp(text, L"<?xml", 5) != 0 || !iswspace(text[5])) return text;
    const wchar_t* end = wcsstr(text, L"?>");
    return end ? end + 2 : text;
}

void Require(IXMLDOMNode* node) {
    if (!node) _com_issue_error(E_POINTER);
}

} // namespace

bool Succeeded(HRESULT result) {
    if (FAILED(result)) _com_issue_error(result);
    return result == S_OK;
}

DomDocument LoadMessage(const wchar_t* text) {
    return base::LoadXmlText(WithoutDeclaration(text));
}

DomNode SelectNode(IXMLDOMNode* context, const wchar_t* path) {
    DomNode node;
    Require(context);
    Succeeded(context->selectSingleNode(_bstr_t(path), &node));
    return node;
}

DomNodeList SelectNodes(IXMLDOMNode* context, const wchar_t* path) {
    DomNodeList list;
    Require(context);
    Succeeded(context->selectNodes(_bstr_t(path), &list));
    return list;
}

DomNode NextNode(DomNodeList& list) {
    DomNode node;
    Succeeded(list->nextNode(&node));
    return node;
}

DomNode FirstChild(IXMLDOMNode* node) {
    DomNode child;
    Succeeded(node->get_firstChild(&child));
    return child;
}

void MoveToNext(DomNode& node) {
    IXMLDOMNode* next = nullptr;
    Succeeded(node->get_nextSibling(&next));
    node.Attach(next);
}

bool AttributeReader::Read(DomElement& element, CString& value) {
    _variant_t attribute;
    if (element->getAttribute(m_name, &attribute) != S_OK || attribute.vt != VT_BSTR) return false;
    const int length = static_cast<int>(::SysStringLen(attribute.bstrVal));
    if (length != value.GetLength() || wmemcmp(value, attribute.bstrVal, length) != 0) {
        value.SetString(attribute.bstrVal, length);
    }
    return true;
}

bool PropertyReader::Read(DomNode& node, CString& name, CString& value) {
    DomElement element(node);
    return element && m_name.Read(element, name) && m_value.Read(element, value);
}

DomElement ElementWriter::Append(IXMLDOMNode* parent, _bstr_t& tag) {
    DomElement element;
    Succeeded(m_document->createElement(tag, &element));
    DomNode appended;
    Succeeded(parent->appendChild(element, &appended));
    return element;
}

DomElement ElementWriter::AppendObject(IXMLDOMNode* group) {
    DomElement object = Append(group, m_object);
    Succeeded(object->setAttribute(m_symbol, _variant_t(L"")));
    return object;
}

void ElementWriter::AppendProperty(IXMLDOMNode* object, const wchar_t* name, const wchar_t* value) {
    const DomElement property = Append(object, m_property);
    Succeeded(property->setAttribute(m_name, _variant_t(name)));
    Succeeded(property->setAttribute(m_value, _variant_t(value)));
}

} // namespace varnoke
