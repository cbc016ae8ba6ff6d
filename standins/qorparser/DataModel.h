// The data model and its entries.
#pragma once

#include <vector>

#include "standins/qorparser/DataObject.h"

namespace qorparser {

class DataModel;

// Finds the object behind an entry; only entries made here have this interface.
inline constexpr IID kEntryIdentity = {
    0xd8d581a5, 0x4523, 0x41a8, {0xbf, 0x53, 0x91, 0xd3, 0x37, 0x40, 0xf9, 0x7e}};

class DataEntry final : public DataObject<QORMODEL::IQORDataEntry> {
public:
    explicit DataEntry(std::wstring_view type);

    STDMETHODIMP GetType(BSTR* type) override;
    STDMETHODIMP GetState(BSTR* state) override;
    STDMETHODIMP SetState(BSTR state) override;
    STDMETHODIMP GetLocalObject(QORMODEL::IQORDataObject** local) override;
    STDMETHODIMP Delete() override;

    const std::wstring& Type() const { return m_type; }

    // The model that holds the entry, which clears this when it lets go of it.
    DataModel* model = nullptr; // weak

protected:
    void* FindParent(REFIID iid) override;

private:
    const std::wstring m_type;
    std::wstring m_state;
    const QORMODEL::IQORDataObjectPtr m_local;
};

// The entries of a data file in their order.
class DataModel final : public base::ComObject<QORMODEL::IQORDataModel> {
public:
    STDMETHODIMP CreateEntry(BSTR type, QORMODEL::IQORDataEntry** entry) override;
    STDMETHODIMP AddEntry(QORMODEL::IQORDataEntry* entry) override;
    STDMETHODIMP GetCount(long* count) override;
    STDMETHODIMP GetEntry(long index, QORMODEL::IQORDataEntry** entry) override;
    STDMETHODIMP FindEntries(BSTR type, BSTR property, BSTR value,
                             QORMODEL::IQORDataEntries** entries) override;

    void Remove(DataEntry* entry);

protected:
    ~DataModel() override;

private:
    using EntryPtr = _com_ptr_t<_com_IIID<DataEntry, &kEntryIdentity>>;

    std::vector<EntryPtr> m_entries;
};

} // namespace qorparser
