// The data model: the entries of a data file in their order.
#pragma once

#include <vector>

#include "standins/qorparser/DataEntry.h"

namespace qorparser {

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
