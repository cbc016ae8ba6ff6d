// The in-process server functions: class object, unloading and registration.
#include "standins/common/ComServer.h"

#include <olectl.h>

#include <string>

#include "base/ComObject.h"
#include "base/Owned.h"
#include "base/Paths.h"

using namespace base;
using namespace standins;

namespace {

std::wstring ClsidText(const CLSID& clsid) {
    wchar_t text[40] = {};
    ::StringFromGUID2(clsid, text, 40);
    return text;
}

bool WriteValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY created = nullptr;
    if (::RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &created,
                          nullptr))
        return false;
    const base::RegistryKey opened(created);
    const DWORD size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    return ::RegSetValueExW(created, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size) ==
           ERROR_SUCCESS;
}

bool WriteControlKeys(const std::wstring& key) {
    return WriteValue(key + L"\\Control", nullptr, L"") && WriteValue(key + L"\\MiscStatus", nullptr, L"0") &&
           WriteValue(key + L"\\MiscStatus\\1", nullptr, std::to_wstring(kControlMiscStatus));
}

// The class, apartment threaded and served by this DLL, and its ProgID; false when a key can't be written.
bool RegisterServedClass(const ServedClass& served) {
    const std::wstring clsid = ClsidText(served.clsid);
    const std::wstring key = L"CLSID\\" + clsid;
    const std::wstring progId = served.progId;
    return WriteValue(key, nullptr, served.description) &&
           WriteValue(key + L"\\InprocServer32", nullptr, base::ModulePath(base::ThisModule())) &&
           WriteValue(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
           WriteValue(key + L"\\ProgID", nullptr, progId) &&
           WriteValue(progId, nullptr, served.description) &&
           WriteValue(progId + L"\\CLSID", nullptr, clsid) && (!served.isControl || WriteControlKeys(key));
}

void UnregisterServedClass(const ServedClass& served) {
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + ClsidText(served.clsid)).c_str());
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, served.progId);
}

} // namespace

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
