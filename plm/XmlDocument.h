// Messages as documents of the system's XML parser, and their nodes. Failing calls of the parser raise
// _com_error.
#pragma once

#include <afxwin.h>

#include "base/Xml.h"

namespace varnoke {

using DomDocument = base::XmlDocumentPtr;
using DomNode = base::XmlNodePtr;
using DomElement = base::XmlElementPtr;
using DomNodeList = base::XmlNodeListPtr;

/// Whether a call gave a result; raises _com_error when it failed.
bool Succeeded(HRESULT result);

/// Loads a text, whatever encoding its XML declaration names; null for one that is not well-formed or brings
/// a document type definition.
DomDocument LoadMessage(const wchar_t* text, base::XmlFault& fault);

/// First match of the path, or null.
DomNode SelectNode(IXMLDOMNode* context, const wchar_t* path);
/// All matches; take them with NextNode, access by index is not linear.
DomNodeList SelectNodes(IXMLDOMNode* context, const wchar_t* path);
DomNode NextNode(DomNodeList& list);

/// Walk over the children: for (DomNode child = FirstChild(node); child; MoveToNext(child)).
DomNode FirstChild(IXMLDOMNode* node);
void MoveToNext(DomNode& node);

/// Reads one attribute of many nodes.
class AttributeReader {
public:
    explicit AttributeReader(const wchar_t* name) : m_name(name) {}
    /// False when the element lacks the attribute or its value is no text. A text that `value` has already
    /// stays there with the buffer that it may share.
    bool Read(DomElement& element, CString& value);

private:
    _bstr_t m_name;
};

/// Reads the properties of an object: the attributes "name" and "value" of its children.
class PropertyReader {
public:
    /// False when one of the two is missing.
    bool Read(DomNode& node, CString& name, CString& value);

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
    DomElement AppendObject(IXMLDOMNode* group);
    /// A new property "pro" of the object.
    void AppendProperty(IXMLDOMNode* object, const wchar_t* name, const wchar_t* value);

private:
    DomElement Append(IXMLDOMNode* parent, _bstr_t& tag);

    IXMLDOMDocument* m_document; // weak
    _bstr_t m_object{L"obj"};
    _bstr_t m_property{L"pro"};
    _bstr_t m_symbol{L"MSYM"};
    _bstr_t m_name{L"name"};
    _bstr_t m_value{L"value"};
};

} // namespace varnoke
