// Documents of the system's XML parser: loading without references to the outside, saving without
// half-written files.
#include <afxwin.h>

#include "plm/XmlDocument.h"
#include "base/WholeFile.h"
#include "module/ModulePaths.h"
#include "plm/SignDataFolder.h"
#include "plm/TemporaryFile.h"

#include <cstring>
#include <cwchar>
#include <cwctype>

namespace varnoke {

namespace {

constexpr CLSID kDocument60 = {0x88d96a05, 0xf192, 0x11d4, {0xa6, 0x5f, 0x00, 0x40, 0x96, 0x32, 0x51, 0xe5}};

bool HasDocumentType(DomDocument& document) {
    IXMLDOMDocumentType* type = nullptr;
    const bool found = document->get_doctype(&type) == S_OK && type;
    const _com_ptr_t<_com_IIID<IXMLDOMDocumentType, &IID_IXMLDOMDocumentType>> owner(type, false);
    return found;
}

/// Makes `array` an array of the file's bytes; false when there are none.
bool ReadBytes(const CString& path, _variant_t& array) {
    std::string bytes;
    if (base::ReadWholeFile(path, bytes) != base::ReadResult::Done || bytes.empty()) return false;
    array.parray = ::SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (!array.parray) return false;
    array.vt = VT_ARRAY | VT_UI1; // owns the array from here on
    memcpy(array.parray->pvData, bytes.data(), bytes.size());
    return true;
}

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

DomDocument CreateDocumentAsIs() {
    DomDocument document;
    Succeeded(document.CreateInstance(kDocument60, nullptr, CLSCTX_INPROC_SERVER));
    // A parser that refuses one of these lacks what it switches off.
    document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true));
    document->put_resolveExternals(VARIANT_FALSE);
    document->put_validateOnParse(VARIANT_FALSE);
    return document;
}

DomDocument CreateDocument() {
    DomDocument document = CreateDocumentAsIs();
    Succeeded(document->put_async(VARIANT_FALSE));
    return document;
}

bool LoadText(DomDocument& document, const wchar_t* text) {
    VARIANT_BOOL loaded = VARIANT_FALSE;
    return Succeeded(document->loadXML(_bstr_t(WithoutDeclaration(text)), &loaded)) && loaded &&
           !HasDocumentType(document);
}

bool LoadFile(DomDocument& document, const CString& path) {
    // The parser would take a path for a URL and stumble over "%41" in it.
    _variant_t bytes;
    VARIANT_BOOL loaded = VARIANT_FALSE;
    return ReadBytes(path, bytes) && Succeeded(document->load(bytes, &loaded)) && loaded &&
           !HasDocumentType(document);
}

bool SaveDocument(IXMLDOMDocument* document, const CString& path) {
    MakeWritable(path);
    TemporaryFile temporary(FolderOfPath(FullPath(path)));
    return !temporary.Path().IsEmpty() && SUCCEEDED(document->save(_variant_t(temporary.Path()))) &&
           temporary.MoveTo(path);
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
