// The elements of an XML file as plain data.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qorparser {

struct XmlElement {
    std::wstring name;
    std::vector<std::pair<std::wstring, std::wstring>> attributes;
    std::vector<XmlElement> children; // elements only
    bool hasText = false;             // whether there is more than blanks beside the elements

    // Null when the element has no such attribute.
    const std::wstring* Attribute(std::wstring_view attribute) const;
    // The value of an attribute, empty when there is none.
    std::wstring_view Value(std::wstring_view attribute) const;
    // The first child of that name, null when there is none.
    const XmlElement* Child(std::wstring_view child) const;
};

// The document element of a file; null when the file can't be read or isn't well-formed. Documents with a
// DTD are refused. Needs COM on the calling thread.
std::shared_ptr<const XmlElement> LoadXmlFile(const wchar_t* file);

// Whether XML can hold the text.
bool IsXmlText(std::wstring_view text);

// Appends text as the content of an attribute in double quotes.
void AppendEscaped(std::wstring& xml, std::wstring_view text);

} // namespace qorparser
