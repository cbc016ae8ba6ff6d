// Reading of the start-sign message: the signer's login, the sign steps and the documents to sign.
#include <afxwin.h>

#include "plm/StartSignMessage.h"
#include "base/Paths.h"
#include "module/Failure.h"
#include "plm/SignDataFolder.h"

namespace varnoke {

namespace {

/// The object's properties, in order; null when it has none or one of them is incomplete. Objects of a group
/// mostly have the same property names: where `model` has the same one at the same place, its text is shared.
OwnedRecord<SSignObj> ReadObject(IXMLDOMNode* node, const SSignObj* model, PropertyReader& reader) {
    OwnedRecord<SSignObj> object(new SSignObj);
    POSITION at = model ? model->GetHeadPosition() : nullptr;
    for (base::XmlNodePtr child = FirstChild(node); child; MoveToNext(child)) {
        auto property = std::make_unique<SSignPro>();
        if (at) property->m_strName = model->GetNext(at)->m_strName;
        if (!reader.Read(child, property->m_strName, property->m_strValue))
            return Fail(Cause::PropertyIncomplete);
        object->AddTail(property.get());
        property.release();
    }
    if (object->IsEmpty()) return Fail(Cause::ObjectEmpty);
    return object;
}

bool AppendObject(SSignType& type, IXMLDOMNode* node, PropertyReader& reader) {
    OwnedRecord<SSignObj> object =
        ReadObject(node, type.m_lstObj.IsEmpty() ? nullptr : type.m_lstObj.GetTail(), reader);
    if (!object) return false;
    type.m_lstObj.AddTail(object.get());
    object.release();
    return true;
}

/// "line:column reason", as far as the parser tells.
CString TextOf(const base::XmlFault& fault) {
    CString text;
    if (fault.line > 0) text.Format(L"%ld:%ld ", fault.line, fault.column);
    return text + fault.reason.c_str();
}

} // namespace

OwnedRecord<SLoginInfo> ReadLoginInfo(IXMLDOMDocument* document) {
    const base::XmlNodePtr object = SelectNode(document, L"root/objs/type[@id=\"LoginInfo\"]/obj");
    if (!object) return Fail(Cause::LoginMissing);

    OwnedRecord<SLoginInfo> login(new SLoginInfo);
    const struct {
        const wchar_t* name;
        CString& value;
    } slots[] = {{L"UserName", login->m_strUserName},
                 {L"Password", login->m_strPassword},
                 {L"PLMServer", login->m_strPLMServer}};
    int count = 0; // a repeated name counts again
    PropertyReader reader;
    for (base::XmlNodePtr child = FirstChild(object); child; MoveToNext(child)) {
        CString name, value;
        if (!reader.Read(child, name, value)) return Fail(Cause::PropertyIncomplete);
        for (const auto& slot : slots) {
            if (name.CompareNoCase(slot.name) == 0) {
                slot.value = value;
                ++count;
            }
        }
    }
    if (count != 3) return Fail(Cause::LoginIncomplete);
    return login;
}

OwnedRecord<SSignType> ReadSignSteps(IXMLDOMDocument* document) {
    OwnedRecord<SSignType> steps(new SSignType);
    PropertyReader reader;
    base::XmlNodeListPtr objects = SelectNodes(document, L"root/objs/type[@id=\"step\"]/obj");
    while (const base::XmlNodePtr object = NextNode(objects)) {
        if (!AppendObject(*steps, object, reader)) return nullptr;
    }
    if (steps->m_lstObj.IsEmpty()) return Fail(Cause::StepsMissing);
    return steps;
}

base::XmlNodePtr FindDocumentGroup(IXMLDOMDocument* document, CString& id) {
    AttributeReader reader(L"id");
    base::XmlNodeListPtr groups = SelectNodes(document, L"root/objs/type");
    while (const base::XmlNodePtr group = NextNode(groups)) {
        base::XmlElementPtr element(group);
        if (!element || !reader.Read(element, id)) return Fail(Cause::GroupWithoutId);
        if (id.CompareNoCase(L"LoginInfo") != 0 && id.CompareNoCase(L"Step") != 0) return group;
    }
    return Fail(Cause::DocumentsMissing);
}

OwnedRecord<SSignType> ReadSignFiles(IXMLDOMDocument* document) {
    OwnedRecord<SSignType> files(new SSignType);
    const base::XmlNodePtr group = FindDocumentGroup(document, files->m_strId);
    if (!group) return nullptr;
    PropertyReader reader;
    for (base::XmlNodePtr object = FirstChild(group); object; MoveToNext(object)) {
        if (!AppendObject(*files, object, reader)) return nullptr;
    }
    if (files->m_lstObj.IsEmpty()) return Fail(Cause::DocumentsMissing, files->m_strId);
    return files;
}

CString KeptMessagePath(const CString& workFolder) {
    return SignDataFolder(workFolder) + L"StartSign.Xml";
}

base::XmlDocumentPtr LoadNewMessage(const wchar_t* xml) {
    base::XmlFault fault;
    const base::XmlDocumentPtr document = LoadMessage(xml, fault);
    if (!document) Fail(Cause::MessageNotWellFormed, TextOf(fault));
    return document;
}

base::XmlDocumentPtr LoadKeptMessage(const CString& workFolder) {
    const CString path = KeptMessagePath(workFolder);
    base::XmlFault fault;
    const base::XmlDocumentPtr document = base::LoadXmlFile(path, &fault);
    if (!document && !base::FileExists(path)) return Fail(Cause::KeptMessageMissing, path);
    if (!document) Fail(Cause::KeptMessageUnreadable, TextOf(fault));
    return document;
}

bool ParseStartSignMessage(const wchar_t* xml, const CString& workFolder, StartSignRecords& records) {
    const base::XmlDocumentPtr document = LoadNewMessage(xml);
    if (!document) return false;
    MakeSignDataFolder(workFolder);
    if (!base::SaveXml(document, KeptMessagePath(workFolder)))
        return FailWithLastError(Cause::MessageNotKept, KeptMessagePath(workFolder));

    records.login = ReadLoginInfo(document);
    if (!records.login) return false;
    records.steps = ReadSignSteps(document);
    if (!records.steps) return false;
    records.files = ReadSignFiles(document);
    return records.files != nullptr;
}

} // namespace varnoke
