// Sign tags and sign log of a document.
#include <afxwin.h>

#include <vector>

#include "host/Paths.h"
#include "host/Records.h"
#include "host/SignMarks.h"

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
std::vector<SSignPro> LoggedProperties(const Document& document, const SSignInfo& info) {
    std::vector<SSignPro> properties;
    for (POSITION position = document.Object().GetHeadPosition(); position;) {
        const SSignPro* property = document.Object().GetNext(position);
        if (!property) continue;
        properties.push_back(*property);
        CString& value = properties.back().m_strValue;
        if (!value.IsEmpty()) continue;
        if (property->m_strName.CompareNoCase(L"SIGN_USER") == 0) value = info.m_strUserName;
        if (property->m_strName.CompareNoCase(L"SIGN_DATE") == 0) value = info.m_strDateText;
    }
    Set(properties, L"ID", document.Id());
    Set(properties, L"SIGN_ROLE", info.m_strRole);
    return properties;
}

} // namespace

SignMarks::SignMarks(CPLMInteract& plm, const CString& folder)
    : m_plm(plm), m_folder(folder), m_before(folder, L"DocSignRecord.before.xml"),
      m_unsent(folder, L"DocSignRecord.unsent.xml") {
    if (m_unsent.Exists() && !FileExists(SignRecordFile(folder))) m_unsent.Restore();
}

SignMarks::~SignMarks() {
    m_before.Discard();
}

bool SignMarks::Note(const Document& document, const SSignInfo& info) {
    m_logged = m_before.Take() && WriteLog(document, info);
    SetTags(document, 1, m_logged);
    return m_logged;
}

void SignMarks::Withdraw(const Document& document) {
    // Logging a deletion would not do: it also cancels the entry of an earlier run.
    if (m_logged) m_before.Restore();
    SetTags(document, 0, 0);
}

bool SignMarks::SendLog() {
    if (!FileExists(SignRecordFile(m_folder))) return true;
    if (!m_unsent.Take()) return false;
    const bool sent = m_plm.WriteSignLogToServer(m_folder) == 0;
    if (sent) {
        m_unsent.Discard();
    } else {
        m_unsent.Restore();
    }
    return sent;
}

bool SignMarks::WriteLog(const Document& document, const SSignInfo& info) {
    std::vector<SSignPro> properties = LoggedProperties(document, info);
    SSignObj object;
    for (SSignPro& property : properties) {
        object.AddTail(&property);
    }
    return m_plm.WriteDelOrSignLogToLocal(&object, m_folder, L"N") != 0;
}

void SignMarks::SetTags(const Document& document, long signTag, long logTag) {
    m_plm.SetDocSignTag(InText(m_folder), InText(document.Name()), signTag);
    m_plm.SetDocSignLogTag(InText(m_folder), InText(document.Name()), logTag);
}

} // namespace host
