// One document of a start-sign message.
#include <afxwin.h>

#include "host/Document.h"
#include "varnoke/Elements.h"

namespace host {

namespace {

constexpr wchar_t kDefaultRole[] = L"设计";

std::vector<CString> ValuesOf(const SSignObj& object, const wchar_t* name) {
    std::vector<CString> values;
    for (const SSignPro* property : varnoke::Elements(object)) {
        if (property->m_strName.CompareNoCase(name) == 0) values.push_back(property->m_strValue);
    }
    return values;
}

} // namespace

CString PropertyNamed(const SSignObj& object, const wchar_t* name, const CString& otherwise) {
    const std::vector<CString> values = ValuesOf(object, name);
    return values.empty() || values.front().IsEmpty() ? otherwise : values.front();
}

Document::Document(const SSignObj& object)
    : m_object(&object), m_name(PropertyNamed(object, kNameProperty, CString())),
      m_remoteName(PropertyNamed(object, L"LOCATION", m_name)), m_id(PropertyNamed(object, L"ID", m_name)),
      m_role(PropertyNamed(object, L"SIGN_ROLE", kDefaultRole)), m_names(ValuesOf(object, kNameProperty)) {}

std::vector<Document> DocumentsOf(const SSignType& files) {
    std::vector<Document> documents;
    for (const SSignObj* object : varnoke::Elements(files.m_lstObj)) {
        documents.emplace_back(*object);
    }
    return documents;
}

} // namespace host
