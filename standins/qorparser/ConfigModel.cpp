// The model configuration: object configurations, design domains and their object maps.
#include "standins/qorparser/ConfigModel.h"

#include "standins/qorparser/ModelCall.h"

namespace qorparser {
namespace {

using namespace QORMODEL;

// An element that keeps the whole document alive.
using SharedElement = std::shared_ptr<const XmlElement>;

SharedElement Part(const SharedElement& whole, const XmlElement* part) {
    return SharedElement(whole, part);
}

SharedElement FindChild(const SharedElement& parent, std::wstring_view element, std::wstring_view key,
                        std::wstring_view value) {
    for (const XmlElement& child : parent->children) {
        const std::wstring* found = child.name == element ? child.Attribute(key) : nullptr;
        if (found && *found == value) return Part(parent, &child);
    }
    return nullptr;
}

// Hands out a new object over an element, or nothing for none.
template <class Object, class Interface>
HRESULT GiveObject(Interface** result, const SharedElement& element) {
    if (!element) return S_FALSE;
    *result = new Object(element);
    return S_OK;
}

// What object configurations and object maps have in common: attributes, and entries with attributes, which
// are the child elements of one name.
template <class Interface>
class AttributedConfig : public base::ComObject<Interface> {
public:
    AttributedConfig(const SharedElement& element, std::wstring_view entryName) : m_element(element) {
        for (const XmlElement& child : element->children)
            if (child.name == entryName) m_entries.push_back(&child);
    }

    STDMETHODIMP GetAttribute(BSTR name, BSTR* value) override {
        return ModelCall(value, [&] { return GiveText(value, m_element->Attribute(TextOf(name))); });
    }
    STDMETHODIMP GetCount(long* count) override {
        return ModelCall(count, [&] {
            *count = static_cast<long>(m_entries.size());
            return S_OK;
        });
    }
    STDMETHODIMP GetEntryAttribute(long index, BSTR name, BSTR* value) override {
        return ModelCall(value, [&] {
            if (index < 0 || index >= static_cast<long>(m_entries.size())) return E_INVALIDARG;
            return GiveText(value, m_entries[index]->Attribute(TextOf(name)));
        });
    }

protected:
    const SharedElement m_element;

private:
    std::vector<const XmlElement*> m_entries;
};

class ObjConfig final : public AttributedConfig<IQORObjConfig> {
public:
    explicit ObjConfig(const SharedElement& element) : AttributedConfig(element, L"attr") {}
};

class ObjMapConfig final : public AttributedConfig<IQORObjMapConfig> {
public:
    explicit ObjMapConfig(const SharedElement& element) : AttributedConfig(element, L"map") {}

    STDMETHODIMP GetServerObjConfigId(BSTR* id) override {
        return ModelCall(id, [&] { return GiveText(id, m_element->Value(L"server")); });
    }
};

class ObjMapConfigs final : public base::ComObject<IQORObjMapConfigs> {
public:
    explicit ObjMapConfigs(std::vector<SharedElement> maps) : m_maps(std::move(maps)) {}

    STDMETHODIMP GetItem(long index, IUnknown** item) override {
        return ModelCall(item, [&] {
            if (index < 0 || index >= static_cast<long>(m_maps.size())) return E_INVALIDARG;
            return GiveObject<ObjMapConfig>(item, m_maps[index]);
        });
    }
    STDMETHODIMP GetCount(long* count) override {
        return ModelCall(count, [&] {
            *count = static_cast<long>(m_maps.size());
            return S_OK;
        });
    }

private:
    const std::vector<SharedElement> m_maps;
};

class DomainConfig final : public base::ComObject<IQORDomainConfig> {
public:
    explicit DomainConfig(const SharedElement& element) : m_element(element) {}

    STDMETHODIMP GetObjMapConfigs(BSTR localId, IQORObjMapConfigs** maps) override {
        return ModelCall(maps, [&] {
            std::vector<SharedElement> found;
            for (const XmlElement& child : m_element->children)
                if (child.name == L"objmap" && child.Value(L"local") == TextOf(localId))
                    found.push_back(Part(m_element, &child));
            *maps = new ObjMapConfigs(std::move(found));
            return S_OK;
        });
    }

private:
    const SharedElement m_element;
};

class ConfigModel final : public base::ComObject<IQORConfigModel> {
public:
    explicit ConfigModel(const SharedElement& document) : m_document(document) {}

    STDMETHODIMP GetObjConfig(BSTR id, IQORObjConfig** config) override {
        return ModelCall(config, [&] {
            return GiveObject<ObjConfig>(config, FindChild(m_document, L"objconfig", L"id", TextOf(id)));
        });
    }
    STDMETHODIMP GetDomainConfig(BSTR name, IQORDomainConfig** domain) override {
        return ModelCall(domain, [&] {
            return GiveObject<DomainConfig>(domain, FindChild(m_document, L"domain", L"name", TextOf(name)));
        });
    }

private:
    const SharedElement m_document;
};

} // namespace

IQORConfigModelPtr MakeConfigModel(const std::shared_ptr<const XmlElement>& document) {
    if (!document || document->name != L"modelconfig") return nullptr;
    return IQORConfigModelPtr(new ConfigModel(document), false);
}

} // namespace qorparser
