// Calls are led through small pieces of code that count down and then either jump on or give a failure. They
// need to know nothing of a function but what its failure looks like.
#include "tests/soak/FaultPoints.h"

#include <windows.h>
#include <msxml2.h>
#include <comdef.h>

#include <cstdint>
#include <cstring>

#include "tests/soak/Workplace.h"

namespace soak {

namespace {

struct Import {
    const char* function;
    int64_t failure;
};

constexpr int64_t kNull = 0;
constexpr int64_t kInvalid = -1;
constexpr int64_t kFail = static_cast<int64_t>(0x80004005);

constexpr Import kImports[] = {
    {"CreateFileW", kInvalid},
    {"ReadFile", kNull},
    {"WriteFile", kNull},
    {"FlushFileBuffers", kNull},
    {"MoveFileExW", kNull},
    {"ReplaceFileW", kNull},
    {"CreateDirectoryW", kNull},
    {"SetFileAttributesW", kNull},
    {"GetFileAttributesW", kInvalid},
    {"GetFileSizeEx", kNull},
    {"DeleteFileW", kNull},
    {"SetEndOfFile", kNull},
    {"SetFilePointerEx", kNull},
    {"FindFirstFileW", kInvalid},
    {"WritePrivateProfileStringW", kNull},
    {"GetFileInformationByHandle", kNull},
    {"CoCreateInstance", kFail},
    {"CLSIDFromProgID", kFail},
    {"CoCreateGuid", kFail},
    {"SysAllocString", kNull},
    {"SysAllocStringLen", kNull},
    {"CreateStreamOnHGlobal", kFail},
    {"dvl_DownloadFile", 1},
    {"dvl_UploadFile", 1},
    {"dvl_QueryObjs", 1},
    {"dvl_SaveToServer", 1},
    {"dvl_GetShareInfo", 1},
    {"malloc", kNull},
};

// Of an XML document: firstChild, appendChild, selectNodes, selectSingleNode, createElement, createAttribute,
// createNode, load, loadXML, save.
constexpr int kDocumentSlots[] = {12, 21, 36, 37, 47, 53, 56, 58, 65, 66};

volatile LONG g_left = 0;

// lock dec dword [rip]; je fail; mov rax, target; jmp rax; fail: mov rax, failure; ret
void* MakeGate(void* target, int64_t failure) {
    static uint8_t* page = nullptr;
    static size_t used = 0;
    constexpr size_t kGate = 64;
    if (!page || used + kGate > 0x1000) {
        page = static_cast<uint8_t*>(
            ::VirtualAlloc(nullptr, 0x1000, MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE));
        used = 0;
    }
    uint8_t* const gate = page + used;
    used += kGate;
    uint8_t code[] = {0x48, 0xB8, 0,    0, 0, 0, 0, 0, 0, 0, // mov rax, &g_left
                      0xF0, 0xFF, 0x08,                      // lock dec dword [rax]
                      0x74, 0x0C,                            // je fail
                      0x48, 0xB8, 0,    0, 0, 0, 0, 0, 0, 0, // mov rax, target
                      0xFF, 0xE0,                            // jmp rax
                      0x48, 0xB8, 0,    0, 0, 0, 0, 0, 0, 0, // fail: mov rax, failure
                      0xC3};                                 // ret
    const volatile LONG* counter = &g_left;
    std::memcpy(code + 2, &counter, 8);
    std::memcpy(code + 17, &target, 8);
    std::memcpy(code + 29, &failure, 8);
    std::memcpy(gate, code, sizeof code);
    return gate;
}

void Redirect(void** slot, int64_t failure) {
    DWORD before = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &before);
    *slot = MakeGate(*slot, failure);
    ::VirtualProtect(slot, sizeof *slot, before, &before);
}

const Import* FindImport(const char* function) {
    for (const Import& import : kImports) {
        if (std::strcmp(import.function, function) == 0) return &import;
    }
    return nullptr;
}

int HookImports(uint8_t* base) {
    const auto* nt =
        reinterpret_cast<IMAGE_NT_HEADERS64*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    int hooked = 0;
    for (auto* dll = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + table); dll->Name; ++dll) {
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA64*>(base + dll->OriginalFirstThunk);
        auto* slots = reinterpret_cast<void**>(base + dll->FirstThunk);
        for (; names->u1.AddressOfData; ++names, ++slots) {
            if (IMAGE_SNAP_BY_ORDINAL64(names->u1.Ordinal)) continue;
            const auto* name = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            const Import* import = FindImport(reinterpret_cast<const char*>(name->Name));
            if (!import) continue;
            Redirect(slots, import->failure);
            ++hooked;
        }
    }
    return hooked;
}

} // namespace

void FaultPoints::Install() {
    auto* base = reinterpret_cast<uint8_t*>(::GetModuleHandleW(L"Varnoke.dll"));
    if (!base || HookImports(base) < 10) Stop("the library's imports were not found");
    _com_ptr_t<_com_IIID<IXMLDOMDocument, &IID_IXMLDOMDocument>> document;
    if (FAILED(document.CreateInstance(L"Msxml2.DOMDocument.6.0"))) Stop("there is no XML parser");
    void** methods = *reinterpret_cast<void***>(document.GetInterfacePtr());
    for (int slot : kDocumentSlots) {
        Redirect(methods + slot, kFail);
    }
}

void FaultPoints::Arm(long n) {
    g_left = n;
}

bool FaultPoints::Disarm() {
    return ::InterlockedExchange(&g_left, 0) <= 0;
}

} // namespace soak
