// One document of a start-sign message.
#include <afxwin.h>

#include "host/Document.h"

namespace host {

namespace {

constexpr wchar_t kDefaultRole[] = L"设计";

std::vector<CString> ValuesOf(const SSignObj& object, const wchar_t* name) {
    std::vector<CString> values;
    for (POSITION position = object.GetHeadPosition(); position;) {
        const SSignPro* property = object.GetNext(position);
        if (property && property->m_strName.CompareNoCase(name) == 0) values.push_back(property->m_strValue);
    }
    return values;
}

CString FirstValueOf(const SSignObj& object, const wchar_t* name, const CString& otherwise) {
    const std::vector<CString> values = ValuesOf(object, name);
    return values.empty() || values.front().IsEmpty() ? otherwise : values.front();
}

} // namespace

CDocument::CDocument(const SSignObj& object)
    : m_pObject(&object), m_strName(FirstValueOf(object, kNameProperty, CString())),
      m_strRemoteName(FirstValueOf(object, L"LOCATION", m_strName)),
      m_strId(FirstValueOf(object, L"ID", m_strName)),
      m_strRole(FirstValueOf(object, L"SIGN_ROLE", kDefaultRole)), m_names(ValuesOf(object, kNameProperty)) {}

std::vector<CDocument> DocumentsOf(const SSignType& files) {
    std::vector<CDocument> documents;
    for (POSITION position = files.m_lstObj.GetHeadPosition(); position;) {
        const SSignObj* object = files.m_lstObj.GetNext(position);
        if (object) documents.emplace_back(*object);
    }
    return documents;
}

} // namespace host
