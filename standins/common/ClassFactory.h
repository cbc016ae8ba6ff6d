// Class factory for an object class with a default constructor.
#pragma once

#include "base/ComObject.h"

namespace standins {

template <class Object>
class ClassFactory final : public base::ComObject<IClassFactory> {
public:
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** result) override {
        if (!result) return E_POINTER;
        *result = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        return base::GuardedCall([&] {
            Object* object = new Object();
            const HRESULT found = object->QueryInterface(iid, result);
            object->Release();
            return found;
        });
    }
    STDMETHODIMP LockServer(BOOL lock) override {
        if (lock)
            ::InterlockedIncrement(&base::g_liveCount);
        else
            ::InterlockedDecrement(&base::g_liveCount);
        return S_OK;
    }
};

// Makes the factory and hands out one of its interfaces; used as ServedClass::makeFactory.
template <class Object>
HRESULT MakeFactory(REFIID iid, void** result) {
    return base::GuardedCall([&] {
        auto* factory = new ClassFactory<Object>();
        const HRESULT found = factory->QueryInterface(iid, result);
        factory->Release();
        return found;
    });
}

} // namespace standins
