// Selection of objects from an object file.
#include "standins/durvell/ObjectQuery.h"

#include <vector>

#include "base/ComApartment.h"
#include "base/Xml.h"

namespace durvell {

namespace {

using base::XmlDocumentPtr;
using base::XmlElementPtr;
using base::XmlNodePtr;

// The nodes that an XPath below the context selects; none on failure.
std::vector<XmlNodePtr> Select(IXMLDOMNode* context, const wchar_t* xpath) {
    std::vector<XmlNodePtr> nodes;
    base::XmlNodeListPtr list;
    if (FAILED(context->selectNodes(_bstr_t(xpath), &list)) || !list) return nodes;
    // One after the other: the list finds a node by its number from the first one on.
    for (XmlNodePtr node; list->nextNode(&node) == S_OK;)
        nodes.push_back(node);
    return nodes;
}

// An attribute's text; false when the node has no such attribute.
bool ReadAttribute(IXMLDOMNode* node, const wchar_t* name, std::wstring* value) {
    const XmlElementPtr element(node);
    _variant_t text;
    if (!element || element->getAttribute(_bstr_t(name), &text) != S_OK || text.vt != VT_BSTR) return false;
    value->assign(text.bstrVal, ::SysStringLen(text.bstrVal));
    return true;
}

// <searchfilter><archivefilter><filter logiccode="and" field="NAME" comparetype="=" value="wang"/>...
// An object matches when every filter does. A filter compares the object's property whose name is the field,
// exactly as written, with the value, without regard to case; an object without the property does not match.
// The codes "and" and "=" are the only ones known, "and" in any case.
class SearchFilter {
public:
    // False when the text is not such a document or holds no filter.
    bool Parse(const std::wstring& xml) {
        const XmlDocumentPtr document = base::LoadXmlText(xml);
        if (!document) return false;
        for (const XmlNodePtr& filter : Select(document, L"/searchfilter/archivefilter/filter")) {
            Condition condition;
            std::wstring logic, comparison;
            const bool known = ReadAttribute(filter, L"logiccode", &logic) && base::SameText(logic, L"and") &&
                               ReadAttribute(filter, L"comparetype", &comparison) && comparison == L"=" &&
                               ReadAttribute(filter, L"field", &condition.field) &&
                               ReadAttribute(filter, L"value", &condition.value);
            if (!known) return false;
            m_conditions.push_back(std::move(condition));
        }
        return !m_conditions.empty();
    }

    // For an "obj" element with "pro" children.
    bool Matches(IXMLDOMNode* object) const {
        const std::vector<XmlNodePtr> properties = Select(object, L"pro");
        for (const Condition& condition : m_conditions)
            if (!condition.HoldsFor(properties)) return false;
        return true;
    }

private:
    struct Condition {
        std::wstring field;
        std::wstring value;

        bool HoldsFor(const std::vector<XmlNodePtr>& properties) const {
            for (const XmlNodePtr& property : properties) {
                std::wstring name, text;
                if (ReadAttribute(property, L"name", &name) && name == field)
                    return ReadAttribute(property, L"value", &text) && base::SameText(text, value);
            }
            return false;
        }
    };

    std::vector<Condition> m_conditions;
};

bool Append(const XmlElementPtr& parent, IXMLDOMNode* object) {
    XmlNodePtr copy, added;
    return SUCCEEDED(object->cloneNode(VARIANT_TRUE, &copy)) && SUCCEEDED(parent->appendChild(copy, &added));
}

} // namespace

Result QueryObjects(const std::wstring& objectFile, const std::wstring& objectType,
                    const std::wstring& filterXml, const std::wstring& resultFile) {
    const base::ComApartment apartment;
    SearchFilter filter;
    if (!filter.Parse(filterXml)) return kResultBadFilter;
    const XmlDocumentPtr objects = base::LoadXmlFile(objectFile);
    if (!objects) return kResultBadObjectFile;

    const XmlDocumentPtr result = base::LoadXmlText(L"<root><objs><type/></objs></root>");
    const std::vector<XmlNodePtr> types = Select(result, L"/root/objs/type");
    const XmlElementPtr type(types.at(0));
    if (FAILED(type->setAttribute(_bstr_t(L"id"), _variant_t(objectType.c_str())))) return kResultInternal;
    for (const XmlNodePtr& object : Select(objects, L"/root/objs/type/obj")) {
        if (filter.Matches(object) && !Append(type, object)) return kResultInternal;
    }
    return base::SaveXml(result, resultFile) ? kResultOk : kResultFileError;
}

} // namespace durvell
