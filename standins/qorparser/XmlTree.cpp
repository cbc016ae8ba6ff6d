// Loading of XML files through the system's DOM, and the rules for XML text.
#include "standins/qorparser/XmlTree.h"

#include "base/Xml.h"

namespace qorparser {
namespace {

constexpr int kMaxDepth = 64;

using AttributesPtr = _com_ptr_t<_com_IIID<IXMLDOMNamedNodeMap, &IID_IXMLDOMNamedNodeMap>>;

using _com_util::CheckError;
using base::XmlElementPtr;
using base::XmlNodePtr;

std::wstring TextOf(const _bstr_t& text) {
    return text.length() ? std::wstring(static_cast<const wchar_t*>(text), text.length()) : std::wstring();
}

void CopyAttributes(IXMLDOMElement* element, XmlElement& copy) {
    AttributesPtr attributes;
    CheckError(element->get_attributes(&attributes));
    for (;;) {
        XmlNodePtr attribute;
        CheckError(attributes->nextNode(&attribute));
        if (!attribute) return;
        _bstr_t name, value;
        CheckError(attribute->get_nodeName(name.GetAddress()));
        CheckError(attribute->get_text(value.GetAddress()));
        copy.attributes.emplace_back(TextOf(name), TextOf(value));
    }
}

// Whether the node is text (or marked as character data) with something to see in it.
bool IsVisibleText(IXMLDOMNode* node) {
    DOMNodeType type = NODE_INVALID;
    CheckError(node->get_nodeType(&type));
    if (type != NODE_TEXT && type != NODE_CDATA_SECTION) return false;
    _bstr_t text;
    CheckError(node->get_text(text.GetAddress()));
    return TextOf(text).find_first_not_of(L" \t\r\n") != std::wstring::npos;
}

// False for elements nested too deeply for a model file.
bool CopyElement(IXMLDOMElement* element, XmlElement& copy, int depth) {
    if (depth > kMaxDepth) return false;
    _bstr_t name;
    CheckError(element->get_nodeName(name.GetAddress()));
    copy.name = TextOf(name);
    CopyAttributes(element, copy);
    XmlNodePtr node;
    CheckError(element->get_firstChild(&node));
    while (node) {
        copy.hasText = copy.hasText || IsVisibleText(node);
        const XmlElementPtr child(node);
        if (child && !CopyElement(child, copy.children.emplace_back(), depth + 1)) return false;
        XmlNodePtr next;
        CheckError(node->get_nextSibling(&next));
        node = next;
    }
    return true;
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
    const base::XmlDocumentPtr document = base::LoadXmlFile(file);
    if (!document) return nullptr;
    XmlElementPtr root;
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
    constexpr std::wstring_view kSpecial = L"&<>\"\t\n\r";
    constexpr const wchar_t* kReferences[] = {L"&amp;", L"&lt;",  L"&gt;", L"&quot;",
                                              L"&#9;",  L"&#10;", L"&#13;"};
    for (const wchar_t c : text) {
        const size_t special = kSpecial.find(c);
        if (special == std::wstring_view::npos)
            xml += c;
        else
            xml += kReferences[special];
    }
}

} // namespace qorparser
