// The search filter of a query: which objects match.
#pragma once

#include <string>
#include <vector>

#include "standins/durvell/Xml.h"

namespace durvell {

// <searchfilter><archivefilter><filter logiccode="and" field="NAME" comparetype="=" value="wang"/>...
// An object matches when every filter does. A filter compares the object's property whose name is the field,
// exactly as written, with the value, without regard to case; an object without the property does not match.
// The codes "and" and
// "=" are the only ones known, "and" in any case.
class SearchFilter {
public:
    // False when the text is not such a document or holds no filter.
    bool Parse(const std::wstring& xml);

    // For an "obj" element with "pro" children.
    bool Matches(IXMLDOMNode* object) const;

private:
    struct Condition {
        std::wstring field;
        std::wstring value;
    };

    std::vector<Condition> m_conditions;
};

} // namespace durvell
