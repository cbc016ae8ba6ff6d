// Texts for exported functions, which take them as wchar_t*.
#pragma once
#include <string>

namespace tests {

// A copy of a text; null stays null.
class Text {
public:
    Text(const wchar_t* text) : m_isNull(!text), m_text(text ? text : L"") {}
    Text(std::wstring text) : m_text(std::move(text)) {}
    operator wchar_t*() { return m_isNull ? nullptr : m_text.data(); }

private:
    bool m_isNull = false;
    std::wstring m_text;
};

} // namespace tests
