// Merging of a further start-sign message (source) into the kept one (target): same signer, same steps, new
// documents only.
#include <afxwin.h>

#include "plm/StartSignMerge.h"
#include "module/DocumentCopy.h"
#include "module/Failure.h"
#include "module/Text.h"
#include "plm/NoCase.h"
#include "plm/SignDataFolder.h"
#include "varnoke/Elements.h"

namespace varnoke {

namespace {

/// Null when there is no document, or one without a name.
const CString* FileNameOf(const SSignObj* object) {
    return object ? FirstValueNoCase(*object, L"FNAME") : nullptr;
}

bool IsSameProperty(const SSignPro* source, const SSignPro* target) {
    return source && target && !source->m_strName.IsEmpty() &&
           source->m_strName.CompareNoCase(target->m_strName) == 0 &&
           source->m_strValue.CompareNoCase(target->m_strValue) == 0;
}

/// Compares two non-empty lists of pointers element by element.
template <class List, class IsSame>
bool AreSameLists(const List& source, const List& target, IsSame isSame) {
    if (source.IsEmpty() || source.GetCount() != target.GetCount()) return false;
    POSITION sourcePosition = source.GetHeadPosition();
    POSITION targetPosition = target.GetHeadPosition();
    while (sourcePosition) {
        if (!isSame(source.GetNext(sourcePosition), target.GetNext(targetPosition))) return false;
    }
    return true;
}

bool IsSameStep(const SSignObj* source, const SSignObj* target) {
    return source && target && AreSameLists(*source, *target, IsSameProperty);
}

} // namespace

bool IsSameSigner(const SLoginInfo* source, const SLoginInfo* target) {
    return source && target && !source->m_strUserName.IsEmpty() && !target->m_strUserName.IsEmpty() &&
           source->m_strUserName.CompareNoCase(target->m_strUserName) == 0;
}

bool AreSameSteps(const SSignType* source, const SSignType* target) {
    return source && target && AreSameLists(source->m_lstObj, target->m_lstObj, IsSameStep);
}

OwnedRecord<SLoginInfo> MergeLoginInfo(IXMLDOMDocument* source, IXMLDOMDocument* target) {
    OwnedRecord<SLoginInfo> login = ReadLoginInfo(source);
    if (!login) return nullptr;
    if (!IsSameSigner(login.get(), ReadLoginInfo(target).get())) return Fail(Cause::OtherSigner);
    return login;
}

OwnedRecord<SSignType> MergeSignSteps(IXMLDOMDocument* source, IXMLDOMDocument* target) {
    OwnedRecord<SSignType> steps = ReadSignSteps(source);
    if (!steps) return nullptr;
    if (!AreSameSteps(steps.get(), ReadSignSteps(target).get())) return Fail(Cause::OtherSteps);
    return steps;
}

OwnedRecord<SSignType> MergeSignFiles(IXMLDOMDocument* source, IXMLDOMDocument* target) {
    OwnedRecord<SSignType> files = ReadSignFiles(source);
    if (!files) return nullptr;
    {
        const OwnedRecord<SSignType> kept = ReadSignFiles(target);
        if (!kept) return nullptr;
        RemoveKeptDocuments(*files, *kept);
    }
    return AppendDocuments(target, *files) ? std::move(files) : nullptr;
}

void RemoveKeptDocuments(SSignType& source, const SSignType& target) {
    NoCaseSet kept;
    for (const SSignObj* object : Elements(target.m_lstObj)) {
        if (const CString* name = FileNameOf(object)) kept.insert(*name);
    }
    for (POSITION position = source.m_lstObj.GetTailPosition(); position;) {
        const POSITION current = position;
        SSignObj* object = source.m_lstObj.GetPrev(position);
        const CString* name = FileNameOf(object);
        if (name && kept.count(*name)) {
            source.m_lstObj.RemoveAt(current);
            OwnedRecord<SSignObj>{object};
        }
    }
}

bool AppendDocuments(IXMLDOMDocument* target, const SSignType& source) {
    CString id;
    const base::XmlNodePtr group = FindDocumentGroup(target, id);
    if (!group) return false;
    ElementWriter writer(target);
    for (const SSignObj* object : Elements(source.m_lstObj)) {
        if (object->IsEmpty()) continue;
        base::XmlElementPtr element = writer.AppendObject(group);
        for (const SSignPro* property : Elements(*object))
            writer.AppendProperty(element, property->m_strName, property->m_strValue);
    }
    return true;
}

bool AddAttribute(const wchar_t* name, const wchar_t* value, IXMLDOMNamedNodeMap* attributes,
                  IXMLDOMDocument* document) {
    if (!HasText(name) || !value || !attributes || !document) return Fail(Cause::ArgumentMissing);
    base::XmlNodePtr attribute;
    Succeeded(
        document->createNode(_variant_t(long(NODE_ATTRIBUTE)), _bstr_t(name), _bstr_t(L""), &attribute));
    Succeeded(attribute->put_nodeValue(_variant_t(value)));
    base::XmlNodePtr replaced;
    Succeeded(attributes->setNamedItem(attribute, &replaced));
    return true;
}

bool MergeStartSignMessage(const wchar_t* xml, const CString& workFolder, StartSignRecords& records) {
    const base::XmlDocumentPtr source = LoadNewMessage(xml);
    if (!source) return false;
    MakeSignDataFolder(workFolder);
    const CString path = KeptMessagePath(workFolder);
    MakeWritable(path);
    const base::XmlDocumentPtr target = LoadKeptMessage(workFolder);
    if (!target) return false;

    records.login = MergeLoginInfo(source, target);
    if (!records.login) return false;
    records.steps = MergeSignSteps(source, target);
    if (!records.steps) return false;
    records.files = MergeSignFiles(source, target);
    return records.files && (base::SaveXml(target, path) || FailWithLastError(Cause::MessageNotKept, path));
}

} // namespace varnoke
