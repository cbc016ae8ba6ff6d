// Lists may hold null elements; those are passed over.
#include "module/DocumentCopy.h"

namespace varnoke {

const CString* FirstValue(const SSignObj& object, const CString& name) {
    for (POSITION pos = object.GetHeadPosition(); pos;) {
        const SSignPro* property = object.GetNext(pos);
        if (property && property->m_strName == name) return &property->m_strValue;
    }
    return nullptr;
}

const CString* FirstValueNoCase(const SSignObj& object, const CString& name) {
    for (POSITION pos = object.GetHeadPosition(); pos;) {
        const SSignPro* property = object.GetNext(pos);
        if (property && property->m_strName.CompareNoCase(name) == 0) return &property->m_strValue;
    }
    return nullptr;
}

const CString* LastValue(const SSignObj& object, const CString& name) {
    const CString* value = nullptr;
    for (POSITION pos = object.GetHeadPosition(); pos;) {
        const SSignPro* property = object.GetNext(pos);
        if (property && property->m_strName == name) value = &property->m_strValue;
    }
    return value;
}

bool HasProperties(const SSignObj* object) {
    return object && !object->IsEmpty();
}

OwnedRecord<SSignObj> CopyObject(const SSignObj& object) {
    OwnedRecord<SSignObj> copy(new SSignObj);
    for (POSITION pos = object.GetHeadPosition(); pos;) {
        const SSignPro* property = object.GetNext(pos);
        if (!property) continue;
        std::unique_ptr<SSignPro> newProperty(new SSignPro(*property));
        copy->AddTail(newProperty.get());
        newProperty.release();
    }
    return copy;
}

OwnedRecord<SSignType> CopyFirstWithProperties(const SSignType& type) {
    for (POSITION pos = type.m_lstObj.GetHeadPosition(); pos;) {
        const SSignObj* object = type.m_lstObj.GetNext(pos);
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
