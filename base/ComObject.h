// Reference counting and interface lookup for COM objects.
#pragma once

#include <windows.h>
#include <unknwn.h>
#include <new>

namespace base {

// Objects and server locks that keep this DLL loaded.
inline LONG g_liveCount = 0;

// Keeps the DLL loaded as long as it exists.
class ModuleReference {
public:
    ModuleReference() { ::InterlockedIncrement(&g_liveCount); }
    ~ModuleReference() { ::InterlockedDecrement(&g_liveCount); }
    ModuleReference& operator=(ModuleReference&&) = delete;
};

// Runs the body of a COM method; an exception becomes a failure code, since none may cross the interface.
template <class Body>
HRESULT GuardedCall(Body body) noexcept {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

// Base of an object with these interfaces; it starts with one reference, which belongs to its creator.
// An interface whose parent (other than IUnknown) should be found too is handled in FindParent.
template <class First, class... Others>
class ComObject : public First, public Others... {
public:
    ComObject() = default;
    ComObject& operator=(ComObject&&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid == __uuidof(IUnknown)) *object = static_cast<First*>(this);
        if (!*object) Find<First>(iid, object);
        (Find<Others>(iid, object), ...);
        if (!*object) *object = FindParent(iid);
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override {
        return static_cast<ULONG>(::InterlockedIncrement(&m_references));
    }
    STDMETHODIMP_(ULONG) Release() override {
        const LONG left = ::InterlockedDecrement(&m_references);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

protected:
    virtual ~ComObject() = default;
    virtual void* FindParent(REFIID) { return nullptr; }

private:
    template <class Interface>
    void Find(REFIID iid, void** object) {
        if (!*object && iid == __uuidof(Interface)) *object = static_cast<Interface*>(this);
    }

    ModuleReference m_module;
    LONG m_references = 1;
};

} // namespace base
