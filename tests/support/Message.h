// Start-sign messages in short notation.
#pragma once
#include <algorithm>
#include <string>
#include <vector>

namespace tests {

inline std::vector<std::wstring> Split(const std::wstring& text, wchar_t separator) {
    std::vector<std::wstring> parts;
    for (size_t start = 0, end = 0; start < text.size(); start = end + 1) {
        end = (std::min)(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
    }
    return parts;
}

inline std::wstring Escaped(std::wstring text) {
    for (size_t at = text.find_first_of(L"&<"); at != std::wstring::npos;
         at = text.find_first_of(L"&<", at + 1))
        text.replace(at, 1, text[at] == L'&' ? L"&amp;" : L"&lt;");
    return text;
}

// "ID:object;object|ID:object" as a message. An object is "NAME=value,NAME=value"; "value" alone is an FNAME,
// "-" an object without properties. Groups and objects that begin with "<" are taken as they stand.
inline std::wstring Message(const std::wstring& groups) {
    std::wstring xml = L"<root><objs>";
    for (const std::wstring& group : Split(groups, L'|')) {
        const size_t colon = group.find(L':');
        xml += group[0] == L'<' ? group : L"<type id='" + group.substr(0, colon) + L"'>";
        if (group[0] == L'<') continue;
        for (const std::wstring& object : Split(group.substr(colon + 1), L';')) {
            xml += object[0] == L'<' ? object : L"<obj>";
            if (object[0] == L'<') continue;
            for (const std::wstring& word : Split(object == L"-" ? L"" : object, L',')) {
                const size_t equals = word.find(L'=');
                const bool named = equals != std::wstring::npos;
                xml += L"<pro name='" + (named ? word.substr(0, equals) : L"FNAME") + L"' value='" +
                       Escaped(word.substr(named ? equals + 1 : 0)) + L"'/>";
            }
            xml += L"</obj>";
        }
        xml += L"</type>";
    }
    return xml + L"</objs></root>";
}

} // namespace tests
