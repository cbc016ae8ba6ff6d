// Entries of a COM class in the registry.
#include "standins/common/Registration.h"

#include <string>

#include "base/Owned.h"
#include "standins/common/Text.h"

namespace standins {

static std::wstring ClsidText(const CLSID& clsid) {
    wchar_t text[40] = {};
    ::StringFromGUID2(clsid, text, 40);
    return text;
}

static bool WriteValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY created = nullptr;
    if (::RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &created,
                          nullptr))
        return false;
    const base::RegistryKey opened(created);
    const DWORD size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    return ::RegSetValueExW(created, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size) ==
           ERROR_SUCCESS;
}

static bool WriteControlKeys(const std::wstring& key) {
    return WriteValue(key + L"\\Control", nullptr, L"") && WriteValue(key + L"\\MiscStatus", nullptr, L"0") &&
           WriteValue(key + L"\\MiscStatus\\1", nullptr, std::to_wstring(kControlMiscStatus));
}

bool RegisterServedClass(const ServedClass& served) {
    const std::wstring clsid = ClsidText(served.clsid);
    const std::wstring key = L"CLSID\\" + clsid;
    const std::wstring progId = served.progId;
    return WriteValue(key, nullptr, served.description) &&
           WriteValue(key + L"\\InprocServer32", nullptr, ModulePath()) &&
           WriteValue(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
           WriteValue(key + L"\\ProgID", nullptr, progId) &&
           WriteValue(progId, nullptr, served.description) &&
           WriteValue(progId + L"\\CLSID", nullptr, clsid) && (!served.isControl || WriteControlKeys(key));
}

void UnregisterServedClass(const ServedClass& served) {
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + ClsidText(served.clsid)).c_str());
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, served.progId);
}

} // namespace standins
