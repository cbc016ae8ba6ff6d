// Loading of XML files through the system's DOM, and the rules for XML text.
#include "standins/qorparser/XmlTree.h"

#include <windows.h>
#include <comdef.h>
#include <msxml2.h>

#include "standins/common/Owned.h"

namespace qorparser {
namespace {

constexpr int kMaxDepth = 64;

// Not every compiler's headers declare this identifier.
constexpr IID kDocumentId = {0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

using DocumentPtr = _com_ptr_t<_com_IIID<IXMLDOMDocument2, &kDocumentId>>;
using DocumentTypePtr = _com_ptr_t<_com_IIID<IXMLDOMDocumentType, &IID_IXMLDOMDocumentType>>;
using NodePtr = _com_ptr_t<_com_IIID<IXMLDOMNode, &IID_IXMLDOMNode>>;
using ElementPtr = _com_ptr_t<_com_IIID<IXMLDOMElement, &IID_IXMLDOMElement>>;
using AttributesPtr = _com_ptr_t<_com_IIID<IXMLDOMNamedNodeMap, &IID_IXMLDOMNamedNodeMap>>;

using _com_util::CheckError;

std::wstring TextOf(const _bstr_t& text) {
    return text.length() ? std::wstring(static_cast<const wchar_t*>(text), text.length()) : std::wstring();
}

// The file's bytes, as a variant from which the DOM can load; empty when the file can't be read.
_variant_t ReadBytes(const wchar_t* path) {
    _variant_t bytes;
    const standins::UniqueFile file = standins::OpenedFile(
        ::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size = {};
    if (!file || !::GetFileSizeEx(file.get(), &size) || size.QuadPart == 0 || size.QuadPart > MAXLONG)
        return bytes;
    V_ARRAY(&bytes) = ::SafeArrayCreateVector(VT_UI1, 0, size.LowPart);
    if (!V_ARRAY(&bytes)) throw std::bad_alloc();
    V_VT(&bytes) = VT_ARRAY | VT_UI1;
    DWORD read = 0;
    const bool complete =
        ::ReadFile(file.get(), V_ARRAY(&bytes)->pvData, size.LowPart, &read, nullptr) && read == size.LowPart;
    if (!complete) bytes.Clear();
    return bytes;
}

void CopyAttributes(IXMLDOMElement* element, XmlElement& copy) {
    AttributesPtr attributes;
    CheckError(element->get_attributes(&attributes));
    for (;;) {
        NodePtr attribute;
        CheckError(attributes->nextNode(&attribute));
        if (!attribute) return;
        _bstr_t name, value;
        CheckError(attribute->get_nodeName(name.GetAddress()));
        CheckError(attribute->get_text(value.GetAddress()));
        copy.attributes.emplace_back(TextOf(name), TextOf(value));
    }
}

// False for elements nested too deeply for a model file.
bool CopyElement(IXMLDOMElement* element, XmlElement& copy, int depth) {
    if (depth > kMaxDepth) return false;
    _bstr_t name;
    CheckError(element->get_nodeName(name.GetAddress()));
    copy.name = TextOf(name);
    CopyAttributes(element, copy);
    NodePtr node;
    CheckError(element->get_firstChild(&node));
    while (node) {
        const ElementPtr child(node);
        if (child && !CopyElement(child, copy.children.emplace_back(), depth + 1)) return false;
        NodePtr next;
        CheckError(node->get_nextSibling(&next));
        node = next;
    }
    return true;
}

DocumentPtr NewDocument() {
    DocumentPtr document;
    CheckError(document.CreateInstance(L"Msxml2.DOMDocument.6.0", nullptr, CLSCTX_INPROC_SERVER));
    CheckError(document->put_async(VARIANT_FALSE));
    CheckError(document->put_validateOnParse(VARIANT_FALSE));
    CheckError(document->put_resolveExternals(VARIANT_FALSE));
    CheckError(document->setProperty(_bstr_t(L"ProhibitDTD"), _variant_t(true)));
    return document;
}

// Some parsers don't know "ProhibitDTD".
bool HasDocumentType(IXMLDOMDocument2* document) {
    DocumentTypePtr type;
    return document->get_doctype(&type) == S_OK && type;
}

bool IsSurrogatePair(std::wstring_view text, size_t at) {
    return at + 1 < text.size() && IS_SURROGATE_PAIR(text[at], text[at + 1]);
}

} // namespace

const std::wstring* XmlElement::Attribute(std::wstring_view attribute) const {
    for (const auto& [key, value] : attributes)
        if (key == attribute) return &value;
    return nullptr;
}

std::wstring_view XmlElement::Value(std::wstring_view attribute) const {
    const std::wstring* value = Attribute(attribute);
    return value ? std::wstring_view(*value) : std::wstring_view();
}

const XmlElement* XmlElement::Child(std::wstring_view child) const {
    for (const XmlElement& candidate : children)
        if (candidate.name == child) return &candidate;
    return nullptr;
}

std::shared_ptr<const XmlElement> LoadXmlFile(const wchar_t* file) {
    const _variant_t bytes = ReadBytes(file);
    if (V_VT(&bytes) == VT_EMPTY) return nullptr;
    const DocumentPtr document = NewDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (FAILED(document->load(bytes, &loaded)) || !loaded || HasDocumentType(document)) return nullptr;
    ElementPtr root;
    CheckError(document->get_documentElement(&root));
    if (!root) return nullptr;
    auto tree = std::make_shared<XmlElement>();
    return CopyElement(root, *tree, 0) ? tree : nullptr;
}

bool IsXmlText(std::wstring_view text) {
    for (size_t at = 0; at < text.size(); ++at) {
        const wchar_t c = text[at];
        if (IsSurrogatePair(text, at))
            ++at;
        else if ((c < 0x20 && c != L'\t' && c != L'\n' && c != L'\r') || (c >= 0xD800 && c <= 0xDFFF) ||
                 c >= 0xFFFE)
            return false;
    }
    return true;
}

void AppendEscaped(std::wstring& xml, std::wstring_view text) {
    for (const wchar_t c : text) {
        switch (c) {
        case L'&':
            xml += L"&amp;";
            break;
        case L'<':
            xml += L"&lt;";
            break;
        case L'>':
            xml += L"&gt;";
            break;
        case L'"':
            xml += L"&quot;";
            break;
        case L'\t':
            xml += L"&#9;";
            break;
        case L'\n':
            xml += L"&#10;";
            break;
        case L'\r':
            xml += L"&#13;";
            break;
        default:
            xml += c;
        }
    }
}

} // namespace qorparser
