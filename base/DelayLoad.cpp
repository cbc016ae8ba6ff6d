#include "base/DelayLoad.h"

#include <string>

#include "base/Owned.h"
#include "base/Paths.h"

namespace base {

namespace {

/// What the current thread's last call found missing, from the look-up to the throw.
thread_local MissingImport missing = {nullptr, nullptr, 0};

template <class T>
T* At(DWORD rva) {
    return reinterpret_cast<T*>(reinterpret_cast<char*>(ThisModule()) + rva);
}

std::wstring WideName(const char* name) {
    return std::wstring(name, name + std::char_traits<char>::length(name));
}

HMODULE Load(const std::wstring& name) {
    HMODULE module = nullptr;
    if (::GetModuleHandleExW(0, name.c_str(), &module)) return module;
    const std::wstring beside = FolderPrefix(ModulePath(ThisModule())) + name;
    if (FileExists(beside)) return ::LoadLibraryExW(beside.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    module = ::LoadLibraryExW(name.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    if (module || ::GetLastError() != ERROR_MOD_NOT_FOUND) return module;
    const std::wstring onPath = FindOnPath(name);
    if (!onPath.empty()) return ::LoadLibraryExW(onPath.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    ::SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

const char* NameOf(const IMAGE_THUNK_DATA& entry) {
    return reinterpret_cast<const char*>(
        At<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(entry.u1.AddressOfData))->Name);
}

/// The first function that is imported from the library and that the module doesn't have; null for none.
const char* FirstAbsent(const IMAGE_DELAYLOAD_DESCRIPTOR& library, HMODULE module) {
    const auto* entry = At<const IMAGE_THUNK_DATA>(library.ImportNameTableRVA);
    for (; entry->u1.AddressOfData != 0; ++entry) {
        if (!::GetProcAddress(module, NameOf(*entry))) return NameOf(*entry);
    }
    return nullptr;
}

/// The library's module, complete; null with `missing` set otherwise.
HMODULE Find(const IMAGE_DELAYLOAD_DESCRIPTOR& library) {
    auto* known = At<HMODULE volatile>(library.ModuleHandleRVA);
    if (*known) return *known;
    const char* name = At<const char>(library.DllNameRVA);
    LibraryHandle module(Load(WideName(name)));
    if (!module) {
        missing = {name, nullptr, ::GetLastError()};
        return nullptr;
    }
    if (const char* absent = FirstAbsent(library, module.get())) {
        missing = {name, absent, ERROR_PROC_NOT_FOUND};
        return nullptr;
    }
    *known = module.release();
    return *known;
}

/// Takes the place of the function that was to be called: nothing could be thrown through the linker's stub.
[[noreturn]] void Raise() {
    throw missing;
}

} // namespace

} // namespace base

/// Called by the linker's stubs; gives the function that the stub jumps to.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming): the linker asks for this name
extern "C" FARPROC WINAPI __delayLoadHelper2(const IMAGE_DELAYLOAD_DESCRIPTOR* library, FARPROC* slot) {
    const HMODULE module = base::Find(*library);
    if (!module) return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&base::Raise));
    auto* slots = base::At<FARPROC>(library->ImportAddressTableRVA);
    const auto* names = base::At<const IMAGE_THUNK_DATA>(library->ImportNameTableRVA);
    const FARPROC function = ::GetProcAddress(module, base::NameOf(names[slot - slots]));
    *slot = function;
    return function;
}
