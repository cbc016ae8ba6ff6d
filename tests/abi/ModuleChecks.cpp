// DLLs of the Microsoft-ABI build: loading in rounds, static objects, thread-local variables.
#include <windows.h>
#include "tests/abi/Checks.h"

namespace {

int g_destroyed = 0;
void NoteDestruction(int digit) {
    g_destroyed = g_destroyed * 10 + digit;
}

template <typename Function>
Function* Find(HMODULE module, const char* name) {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

DWORD WINAPI AddInThread(void* function) {
    return reinterpret_cast<int (*)(int)>(function)(1);
}

void ProbeRound() {
    HMODULE probe = LoadLibraryW(L"abi-probe.dll");
    CHECK(probe != nullptr);
    if (probe == nullptr) return;
    g_destroyed = 0;
    CHECK(Find<int(void (*)(int))>(probe, "ProbeOrder")(NoteDestruction) == 123);

    auto* addToThreadValue = Find<int(int)>(probe, "ProbeThreadValue");
    CHECK(addToThreadValue(10) == 17);
    HANDLE thread =
        CreateThread(nullptr, 0, AddInThread, reinterpret_cast<void*>(addToThreadValue), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD inThread = 0;
    GetExitCodeThread(thread, &inThread);
    CloseHandle(thread);
    CHECK(inThread == 8 && addToThreadValue(0) == 17);

    FreeLibrary(probe);
    CHECK(g_destroyed == 321);
    CHECK(GetModuleHandleW(L"abi-probe.dll") == nullptr);
}

// A copy under another name, because this program itself holds the library.
void LibraryRound(const wchar_t* copy) {
    HMODULE library = LoadLibraryW(copy);
    CHECK(library != nullptr);
    if (library == nullptr) return;
    auto* construct = Find<void*(void*)>(library, "??0CPLMInteract@@QEAA@XZ");
    auto* destroy = Find<void(void*)>(library, "??1CPLMInteract@@UEAA@XZ");
    CHECK(construct != nullptr && destroy != nullptr);
    if (construct != nullptr && destroy != nullptr) {
        alignas(16) char object[1024];
        CHECK(construct(object) == object);
        destroy(object);
    }
    FreeLibrary(library);
    CHECK(GetModuleHandleW(copy) == nullptr);
}

} // namespace

void checks::Modules() {
    wchar_t original[MAX_PATH], copy[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"Varnoke.dll"), original, MAX_PATH);
    wcscpy(copy, original);
    wcscpy(wcsrchr(copy, L'\\') + 1, L"VarnokeRound.dll");
    CHECK(CopyFileW(original, copy, FALSE));
    for (int round = 0; round < 3; ++round) {
        ProbeRound();
        LibraryRound(copy);
    }
    DeleteFileW(copy);
}
