// The data model, its entries and the collections of entries found in it.
#include "standins/qorparser/DataModel.h"

#include <algorithm>

namespace qorparser {
namespace {

using namespace QORMODEL;

using LocalObject = DataObject<IQORDataObject>;

// Hands out a further reference.
template <class Object, class Interface>
HRESULT GiveReference(Interface** result, Object* object) {
    object->AddRef();
    *result = object;
    return S_OK;
}

class DataEntries final : public base::ComObject<IQORDataEntries> {
public:
    explicit DataEntries(std::vector<IQORDataEntryPtr> entries) : m_entries(std::move(entries)) {}

    STDMETHODIMP GetCount(long* count) override {
        return ModelCall(count, [&] {
            *count = static_cast<long>(m_entries.size());
            return S_OK;
        });
    }
    STDMETHODIMP GetItem(long index, IQORDataEntry** entry) override {
        return ModelCall(entry, [&] {
            if (index < 0 || index >= static_cast<long>(m_entries.size())) return E_INVALIDARG;
            return GiveReference(entry, m_entries[index].GetInterfacePtr());
        });
    }

private:
    const std::vector<IQORDataEntryPtr> m_entries;
};

} // namespace

DataEntry::DataEntry(std::wstring_view type) : m_type(type), m_local(new LocalObject(), false) {}

STDMETHODIMP DataEntry::GetType(BSTR* type) {
    return ModelCall(type, [&] { return GiveText(type, std::wstring_view(m_type)); });
}

STDMETHODIMP DataEntry::GetState(BSTR* state) {
    return ModelCall(state, [&] { return GiveText(state, std::wstring_view(m_state)); });
}

STDMETHODIMP DataEntry::SetState(BSTR state) {
    return ModelCall([&] {
        if (!IsXmlText(TextOf(state))) return E_INVALIDARG;
        m_state = TextOf(state);
        return S_OK;
    });
}

STDMETHODIMP DataEntry::GetLocalObject(IQORDataObject** local) {
    return ModelCall(local, [&] { return GiveReference(local, m_local.GetInterfacePtr()); });
}

STDMETHODIMP DataEntry::Delete() {
    return ModelCall([&] {
        if (!model) return S_FALSE;
        model->Remove(this);
        return S_OK;
    });
}

void* DataEntry::FindParent(REFIID iid) {
    if (iid == __uuidof(IQORDataObject)) return static_cast<IQORDataObject*>(this);
    return iid == kEntryIdentity ? this : nullptr;
}

DataModel::~DataModel() {
    for (const EntryPtr& entry : m_entries)
        entry->model = nullptr;
}

STDMETHODIMP DataModel::CreateEntry(BSTR type, IQORDataEntry** entry) {
    return ModelCall(entry, [&] {
        if (!IsXmlText(TextOf(type))) return E_INVALIDARG;
        *entry = new DataEntry(TextOf(type));
        return S_OK;
    });
}

STDMETHODIMP DataModel::AddEntry(IQORDataEntry* entry) {
    return ModelCall([&] {
        const EntryPtr own(entry);
        if (!own || own->model) return E_INVALIDARG;
        m_entries.push_back(own);
        own->model = this;
        return S_OK;
    });
}

STDMETHODIMP DataModel::GetCount(long* count) {
    return ModelCall(count, [&] {
        *count = static_cast<long>(m_entries.size());
        return S_OK;
    });
}

STDMETHODIMP DataModel::GetEntry(long index, IQORDataEntry** entry) {
    return ModelCall(entry, [&] {
        if (index < 0 || index >= static_cast<long>(m_entries.size())) return E_INVALIDARG;
        return GiveReference(entry, m_entries[index].GetInterfacePtr());
    });
}

STDMETHODIMP DataModel::FindEntries(BSTR type, BSTR property, BSTR value, IQORDataEntries** entries) {
    return ModelCall(entries, [&] {
        std::vector<IQORDataEntryPtr> found;
        for (const EntryPtr& entry : m_entries)
            if (entry->Type() == TextOf(type) && entry->Has(TextOf(property), TextOf(value)))
                found.emplace_back(entry.GetInterfacePtr());
        *entries = new DataEntries(std::move(found));
        return S_OK;
    });
}

void DataModel::Remove(DataEntry* entry) {
    const auto held = std::find_if(m_entries.begin(), m_entries.end(),
                                   [&](const EntryPtr& other) { return other.GetInterfacePtr() == entry; });
    entry->model = nullptr;
    m_entries.erase(held);
}

} // namespace qorparser
