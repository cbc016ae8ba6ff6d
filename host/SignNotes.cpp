#include <afxwin.h>

#include <vector>

#include "host/Records.h"
#include "host/SignNotes.h"
#include "varnoke/Elements.h"

namespace host {

namespace {

void Set(std::vector<SSignPro>& properties, const wchar_t* name, const CString& value) {
    for (SSignPro& property : properties) {
        if (property.m_strName == name) {
            property.m_strValue = value;
            return;
        }
    }
    properties.push_back({name, value});
}

/// The document's properties, with the identifier and the role that it was signed with.
std::vector<SSignPro> LoggedProperties(const Document& document, const SignatureNote& signature) {
    std::vector<SSignPro> properties;
    for (const SSignPro* property : varnoke::Elements(document.Object())) {
        properties.push_back(*property);
        CString& value = properties.back().m_strValue;
        if (!value.IsEmpty()) continue;
        if (property->m_strName.CompareNoCase(L"SIGN_USER") == 0) value = signature.user;
        if (property->m_strName.CompareNoCase(L"SIGN_DATE") == 0) value = signature.date;
    }
    Set(properties, L"ID", document.Id());
    Set(properties, L"SIGN_ROLE", signature.role);
    return properties;
}

} // namespace

bool LogSignature(CPLMInteract& plm, const CString& work, const Document& document,
                  const SignatureNote& signature) {
    std::vector<SSignPro> properties = LoggedProperties(document, signature);
    SSignObj object;
    for (SSignPro& property : properties) {
        object.AddTail(&property);
    }
    return plm.WriteDelOrSignLogToLocal(&object, work, L"N") != 0;
}

void MarkSigned(CPLMInteract& plm, const CString& work, const Document& document, bool logged) {
    plm.SetDocSignTag(InText(work), InText(document.Name()), 1);
    plm.SetDocSignLogTag(InText(work), InText(document.Name()), logged ? 1 : 0);
}

} // namespace host
