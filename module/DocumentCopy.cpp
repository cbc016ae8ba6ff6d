// Lists may hold null elements; those are passed over.
#include "module/DocumentCopy.h"

#include "varnoke/Elements.h"

namespace varnoke {

const CString* FirstValue(const SSignObj& object, const CString& name) {
    for (const SSignPro* property : Elements(object)) {
        if (property->m_strName == name) return &property->m_strValue;
    }
    return nullptr;
}

const CString* FirstValueNoCase(const SSignObj& object, const CString& name) {
    for (const SSignPro* property : Elements(object)) {
        if (property->m_strName.CompareNoCase(name) == 0) return &property->m_strValue;
    }
    return nullptr;
}

const CString* LastValue(const SSignObj& object, const CString& name) {
    const CString* value = nullptr;
    for (const SSignPro* property : Elements(object)) {
        if (property->m_strName == name) value = &property->m_strValue;
    }
    return value;
}

bool HasProperties(const SSignObj* object) {
    return object && !object->IsEmpty();
}

OwnedRecord<SSignObj> CopyObject(const SSignObj& object) {
    OwnedRecord<SSignObj> copy(new SSignObj);
    for (const SSignPro* property : Elements(object)) {
        std::unique_ptr<SSignPro> newProperty(new SSignPro(*property));
        copy->AddTail(newProperty.get());
        newProperty.release();
    }
    return copy;
}

OwnedRecord<SSignType> CopyFirstWithProperties(const SSignType& type) {
    for (const SSignObj* object : Elements(type.m_lstObj)) {
        if (!HasProperties(object)) continue;
        OwnedRecord<SSignType> copy(new SSignType);
        AppendObject(*copy, CopyObject(*object));
        return copy;
    }
    return nullptr;
}

void AppendObject(SSignType& type, OwnedRecord<SSignObj> object) {
    type.m_lstObj.AddTail(object.get());
    object.release();
}

} // namespace varnoke
