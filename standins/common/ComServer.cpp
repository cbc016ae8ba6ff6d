// The in-process server functions: class object, unloading and registration.
#include "standins/common/ComServer.h"

#include <olectl.h>

#include "base/ComObject.h"
#include "standins/common/Registration.h"

using namespace base;
using namespace standins;

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    return GuardedCall([&]() -> HRESULT {
        for (const ServedClass& served : ServedClasses())
            if (served.clsid == clsid) return served.makeFactory(iid, object);
        return CLASS_E_CLASSNOTAVAILABLE;
    });
}

STDAPI DllCanUnloadNow() {
    return g_liveCount == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return GuardedCall([] {
        for (const ServedClass& served : ServedClasses())
            if (!RegisterServedClass(served)) return SELFREG_E_CLASS;
        return S_OK;
    });
}

STDAPI DllUnregisterServer() {
    return GuardedCall([] {
        for (const ServedClass& served : ServedClasses())
            UnregisterServedClass(served);
        return S_OK;
    });
}
