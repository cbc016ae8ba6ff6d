// The search filter of a query: which objects match.
#include "standins/durvell/SearchFilter.h"

#include "standins/common/Text.h"

namespace durvell {

bool SearchFilter::Parse(const std::wstring& xml) {
    m_conditions.clear();
    const standins::XmlDocumentPtr document = standins::LoadXmlText(xml);
    if (!document) return false;
    for (const XmlNodePtr& filter : Select(document, L"/searchfilter/archivefilter/filter")) {
        Condition condition;
        std::wstring logic, comparison;
        if (!ReadAttribute(filter, L"logiccode", &logic) || !base::SameText(logic, L"and")) return false;
        if (!ReadAttribute(filter, L"comparetype", &comparison) || comparison != L"=") return false;
        if (!ReadAttribute(filter, L"field", &condition.field) ||
            !ReadAttribute(filter, L"value", &condition.value))
            return false;
        m_conditions.push_back(std::move(condition));
    }
    return !m_conditions.empty();
}

static bool HasValue(const std::vector<XmlNodePtr>& properties, const std::wstring& field,
                     const std::wstring& value) {
    for (const XmlNodePtr& property : properties) {
        std::wstring name, text;
        if (ReadAttribute(property, L"name", &name) && name == field)
            return ReadAttribute(property, L"value", &text) && base::SameText(text, value);
    }
    return false;
}

bool SearchFilter::Matches(IXMLDOMNode* object) const {
    const std::vector<XmlNodePtr> properties = Select(object, L"pro");
    for (const Condition& condition : m_conditions)
        if (!HasValue(properties, condition.field, condition.value)) return false;
    return true;
}

} // namespace durvell
