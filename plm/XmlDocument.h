// Documents of the system's XML parser: loading without references to the outside, saving without
// half-written files. Failing calls of the parser raise _com_error unless stated otherwise.
#pragma once

#include <afxwin.h>
#include <comdef.h>
#include <msxml2.h>

namespace varnoke {

inline constexpr IID kDocument2Id = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

using DomDocument = _com_ptr_t<_com_IIID<IXMLDOMDocument2, &kDocument2Id>>;
using DomNode = _com_ptr_t<_com_IIID<IXMLDOMNode, &IID_IXMLDOMNode>>;
using DomElement = _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>>;
using DomNodeList = _com_ptr_t<_com_IIID<IXMLDOMNodeList, &IID_IXMLDOMNodeList>>;

/// Whether a call gave a result; raises _com_error when it failed.
bool Succeeded(HRESULT result);

/// A document that loads with its caller waiting for it.
DomDocument CreateDocument();
/// A document whose loading mode is the parser's own.
DomDocument CreateDocumentAsIs();

/// False for a text or file that is not well-formed or brings a document type definition.
bool LoadText(DomDocument& document, const wchar_t* text);
bool LoadFile(DomDocument& document, const CString& path);

/// Writes a temporary file beside `path`, which then takes its place, read-only or not. On failure the old
/// file stays and false is returned.
bool SaveDocument(IXMLDOMDocument* document, const CString& path);

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
