// New entries of the sign log: filled from the sign object, and mapped to what the server gets.
#include "plm/SignLogEntry.h"

#include "base/Owned.h"
#include "config/EntryAttribute.h"
#include "module/BstrText.h"
#include "module/DocumentCopy.h"

using namespace QORMODEL;
using _com_util::CheckError;

namespace varnoke {

namespace {

// A new identifier as 36 upper-case characters in 8-4-4-4-12 form, without braces; empty when the system has
// none.
CString NewGuid() {
    GUID guid = {};
    LPOLESTR text = nullptr;
    if (FAILED(::CoCreateGuid(&guid)) || FAILED(::StringFromCLSID(guid, &text))) return CString();
    const base::TaskMemory<wchar_t> owned(text);
    const CString braced(text);
    return braced.Mid(1, braced.GetLength() - 2);
}

// Empty when the sign object has no such property.
CString SignValue(const SSignObj& obj, const CString& name) {
    const CString* value = LastValue(obj, name);
    return value ? *value : CString();
}

// A new entry and its local object, which keeps the client's values apart from those mapped for the server.
struct NewEntry {
    NewEntry(IQORDataModel* model, const CString& type) {
        CheckError(model->CreateEntry(ToBstr(type), &entry));
        CheckError(entry->GetLocalObject(&local));
    }

    void Set(const CString& name, const CString& value) const {
        const _bstr_t key = ToBstr(name), text = ToBstr(value);
        CheckError(entry->SetProperty(key, text));
        CheckError(local->SetProperty(key, text));
    }

    IQORDataEntryPtr entry;
    IQORDataObjectPtr local;
};

void FillConfigured(NewEntry& entry, const SignLogSource& source) {
    long count = 0;
    CheckError(source.local->GetCount(&count));
    for (long index = 0; index < count; ++index) {
        const CString name = EntryAttribute(source.local, index, L"name");
        if (!name.IsEmpty()) entry.Set(name, SignValue(source.obj, name));
    }
}

// Comes after the configured properties: these identify the entry, whatever the configuration lists.
void FillIdentity(NewEntry& entry, const SignLogSource& source) {
    entry.Set(L"ID", NewGuid());
    entry.Set(L"QORMFILEID", source.documentId);
    entry.Set(L"QORMROLE", source.role);
    entry.Set(L"QORMTYPE", source.kind);
    entry.Set(L"SIGNSTATE", source.kind);
}

void MapToServer(NewEntry& entry, IQORObjMapConfig* map) {
    long count = 0;
    CheckError(map->GetCount(&count));
    for (long index = 0; index < count; ++index) {
        const CString server = EntryAttribute(map, index, L"server");
        if (server.IsEmpty()) continue;
        const CString client = EntryAttribute(map, index, L"client");
        const CString value = EntryProperty(entry.local, client);
        CheckError(entry.entry->SetProperty(ToBstr(server), ToBstr(value)));
    }
}

} // namespace

SignLogSource::SignLogSource(const SSignObj& obj, const CString& kind, IQORObjConfig* local,
                             IQORObjMapConfig* map)
    : obj(obj), local(local), map(map), kind(kind), documentId(SignValue(obj, L"ID")),
      role(SignValue(obj, L"SIGN_ROLE")) {
    _bstr_t type;
    CheckError(local->GetAttribute(_bstr_t(L"id"), type.GetAddress()));
    entryType = ToText(type);
}

CString EntryProperty(IQORDataObject* object, const wchar_t* name) {
    _bstr_t value;
    CheckError(object->GetProperty(_bstr_t(name), value.GetAddress()));
    return ToText(value);
}

void AddEntry(IQORDataModel* model, const SignLogSource& source) {
    NewEntry entry(model, source.entryType);
    FillConfigured(entry, source);
    FillIdentity(entry, source);
    MapToServer(entry, source.map);
    CheckError(entry.entry->SetState(_bstr_t(L"N")));
    CheckError(model->AddEntry(entry.entry));
}

} // namespace varnoke
