// Walks over the nodes of a document.
#include <afxwin.h>

#include "plm/XmlDocument.h"

#include <cwchar>
#include <string>

namespace varnoke {

namespace {

/// The text without the encoding that its XML declaration names: that is one of a file, while these are
/// characters, and the parser would take it over into the file that it saves. The rest of the declaration is
/// the parser's to check; a declaration that names an encoding twice gives no text at all.
std::wstring WithoutEncoding(std::wstring text) {
    constexpr wchar_t kBlank[] = L" \t\r\n";
    const size_t end = text.find(L"?>");
    if (text.compare(0, 5, L"<?xml") != 0 || end == text.npos) return text;
    const size_t name = text.find(L"encoding");
    if (name > end || !wcschr(kBlank, text[name - 1])) return text;
    const size_t equals = text.find_first_not_of(kBlank, name + 8);
    const size_t open =
        equals < end && text[equals] == L'=' ? text.find_first_not_of(kBlank, equals + 1) : end;
    if (open >= end || (text[open] != L'"' && text[open] != L'\'')) return text;
    const size_t close = text.find(text[open], open + 1);
    if (close > end || text.substr(close, end - close).find(L"encoding") != text.npos) return std::wstring();
    return text.erase(name, close + 1 - name);
}

/// XML has no half surrogate pairs; the parser would keep them as something else.
bool HasWholeCharacters(const std::wstring& text) {
    for (size_t i = 0; i < text.size(); ++i) {
        if (IS_LOW_SURROGATE(text[i])) return false;
        if (IS_HIGH_SURROGATE(text[i]) && (++i == text.size() || !IS_LOW_SURROGATE(text[i]))) return false;
    }
    return true;
}

void Require(IXMLDOMNode* node) {
    if (!node) _com_issue_error(E_POINTER);
}

} // namespace

bool Succeeded(HRESULT result) {
    if (FAILED(result)) _com_issue_error(result);
    return result == S_OK;
}

base::XmlDocumentPtr LoadMessage(const wchar_t* text, base::XmlFault& fault) {
    constexpr wchar_t kByteOrderMark = 0xFEFF;
    const std::wstring whole(text + (*text == kByteOrderMark ? 1 : 0));
    return HasWholeCharacters(whole) ? base::LoadXmlText(WithoutEncoding(whole), &fault) : nullptr;
}

base::XmlNodePtr SelectNode(IXMLDOMNode* context, const wchar_t* path) {
    base::XmlNodePtr node;
    Require(context);
    Succeeded(context->selectSingleNode(_bstr_t(path), &node));
    return node;
}

base::XmlNodeListPtr SelectNodes(IXMLDOMNode* context, const wchar_t* path) {
    base::XmlNodeListPtr list;
    Require(context);
    Succeeded(context->selectNodes(_bstr_t(path), &list));
    return list;
}

base::XmlNodePtr NextNode(base::XmlNodeListPtr& list) {
    base::XmlNodePtr node;
    Succeeded(list->nextNode(&node));
    return node;
}

base::XmlNodePtr FirstChild(IXMLDOMNode* node) {
    base::XmlNodePtr child;
    Succeeded(node->get_firstChild(&child));
    return child;
}

void MoveToNext(base::XmlNodePtr& node) {
    IXMLDOMNode* next = nullptr;
    Succeeded(node->get_nextSibling(&next));
    node.Attach(next);
}

bool AttributeReader::Read(base::XmlElementPtr& element, CString& value) {
    _variant_t attribute;
    if (element->getAttribute(m_name, &attribute) != S_OK || attribute.vt != VT_BSTR) return false;
    const int length = static_cast<int>(::SysStringLen(attribute.bstrVal));
    if (length != value.GetLength() || wmemcmp(value, attribute.bstrVal, length) != 0) {
        value.SetString(attribute.bstrVal, length);
    }
    return true;
}

bool PropertyReader::Read(base::XmlNodePtr& node, CString& name, CString& value) {
    base::XmlElementPtr element(node);
    return element && m_name.Read(element, name) && m_value.Read(element, value);
}

base::XmlElementPtr ElementWriter::Append(IXMLDOMNode* parent, _bstr_t& tag) {
    base::XmlElementPtr element;
    Succeeded(m_document->createElement(tag, &element));
    base::XmlNodePtr appended;
    Succeeded(parent->appendChild(element, &appended));
    return element;
}

base::XmlElementPtr ElementWriter::AppendObject(IXMLDOMNode* group) {
    base::XmlElementPtr object = Append(group, m_object);
    Succeeded(object->setAttribute(m_symbol, _variant_t(L"")));
    return object;
}

void ElementWriter::AppendProperty(IXMLDOMNode* object, const wchar_t* name, const wchar_t* value) {
    const base::XmlElementPtr property = Append(object, m_property);
    Succeeded(property->setAttribute(m_name, _variant_t(name)));
    Succeeded(property->setAttribute(m_value, _variant_t(value)));
}

} // namespace varnoke
