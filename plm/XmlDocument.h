// Messages as documents of the system's XML parser, and their nodes. Failing calls of the parser raise
// _com_error.
#pragma once

#include <afxwin.h>

#include "base/Xml.h"

namespace varnoke {

/// Whether a call gave a result; raises _com_error when it failed.
bool Succeeded(HRESULT result);

/// Loads a text, whatever encoding its XML declaration names; null for one that is not well-formed or brings
/// a document type definition.
base::XmlDocumentPtr LoadMessage(const wchar_t* text, base::XmlFault& fault);

/// First match of the path, or null.
base::XmlNodePtr SelectNode(IXMLDOMNode* context, const wchar_t* path);
/// All matches; take them with NextNode, access by index is not linear.
base::XmlNodeListPtr SelectNodes(IXMLDOMNode* context, const wchar_t* path);
base::XmlNodePtr NextNode(base::XmlNodeListPtr& list);

/// Walk over the children: for (base::XmlNodePtr child = FirstChild(node); child; MoveToNext(child)).
base::XmlNodePtr FirstChild(IXMLDOMNode* node);
void MoveToNext(base::XmlNodePtr& node);

/// Reads one attribute of many nodes.
class AttributeReader {
public:
    explicit AttributeReader(const wchar_t* name) : m_name(name) {}
    /// False when the element lacks the attribute or its value is no text. A text that `value` has already
    /// stays there with the buffer that it may share.
    bool Read(base::XmlElementPtr& element, CString& value);

private:
    _bstr_t m_name;
};

/// Reads the properties of an object: the attributes "name" and "value" of its children.
class PropertyReader {
public:
    /// False when one of the two is missing.
    bool Read(base::XmlNodePtr& node, CString& name, CString& value);

private:
    AttributeReader m_name{L"name"};
    AttributeReader m_value{L"value"};
};

/// Appends the elements of objects and properties, none of them with a namespace.
class ElementWriter {
public:
    /// The document is borrowed.
    explicit ElementWriter(IXMLDOMDocument* document) : m_document(document) {}

    /// A new object "obj" with the empty attribute "MSYM".
    base::XmlElementPtr AppendObject(IXMLDOMNode* group);
    /// A new property "pro" of the object.
    void AppendProperty(IXMLDOMNode* object, const wchar_t* name, const wchar_t* value);

private:
    base::XmlElementPtr Append(IXMLDOMNode* parent, _bstr_t& tag);

    IXMLDOMDocument* m_document; // weak
    _bstr_t m_object{L"obj"};
    _bstr_t m_property{L"pro"};
    _bstr_t m_symbol{L"MSYM"};
    _bstr_t m_name{L"name"};
    _bstr_t m_value{L"value"};
};

} // namespace varnoke
