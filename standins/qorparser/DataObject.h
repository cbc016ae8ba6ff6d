// A list of named texts as a COM object: the base of entries, and their local objects.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "neighbours/qormodel.h"
#include "standins/qorparser/ModelCall.h"
#include "standins/qorparser/XmlTree.h"

namespace qorparser {

template <class Interface>
class DataObject : public base::ComObject<Interface> {
public:
    STDMETHODIMP GetProperty(BSTR name, BSTR* value) override {
        return ModelCall(value, [&] {
            const Property* found = Find(TextOf(name));
            return GiveText(value, found ? &found->second : nullptr);
        });
    }
    STDMETHODIMP SetProperty(BSTR name, BSTR value) override {
        return ModelCall([&] {
            const std::wstring_view key = TextOf(name), text = TextOf(value);
            if (key.empty() || !IsXmlText(key) || !IsXmlText(text)) return E_INVALIDARG;
            if (Property* found = Find(key))
                found->second = text;
            else
                m_properties.emplace_back(key, text);
            return S_OK;
        });
    }
    STDMETHODIMP GetPropertyCount(long* count) override {
        return ModelCall(count, [&] {
            *count = static_cast<long>(m_properties.size());
            return S_OK;
        });
    }
    STDMETHODIMP GetPropertyName(long index, BSTR* name) override {
        return ModelCall(name, [&] {
            if (index < 0 || index >= static_cast<long>(m_properties.size())) return E_INVALIDARG;
            return GiveText(name, std::wstring_view(m_properties[index].first));
        });
    }

    // Whether a property of that name has that value.
    bool Has(std::wstring_view name, std::wstring_view value) {
        const Property* found = Find(name);
        return found && found->second == value;
    }

private:
    using Property = std::pair<std::wstring, std::wstring>;

    // Entries have a few dozen properties at most: a search is quicker than an index.
    Property* Find(std::wstring_view name) {
        for (Property& property : m_properties)
            if (property.first == name) return &property;
        return nullptr;
    }

    std::vector<Property> m_properties;
};

} // namespace qorparser
