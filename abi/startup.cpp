// Static initialisation.
#include "startup.h"

#pragma section(".CRT$XIA", long, read)
#pragma section(".CRT$XIZ", long, read)
#pragma section(".CRT$XCA", long, read)
#pragma section(".CRT$XCZ", long, read)

extern "C" {
// Tells the linker that floating point is used; nothing reads it.
int _fltused = 1;
}

namespace {

typedef int(__cdecl* CInitializer)();
typedef void(__cdecl* CxxInitializer)();

// The linker sorts by section name: the compiler's entries lie in .CRT$XI* and .CRT$XC* between these marks.
__declspec(allocate(".CRT$XIA")) const CInitializer g_cBegin[] = {nullptr};
__declspec(allocate(".CRT$XIZ")) const CInitializer g_cEnd[] = {nullptr};
__declspec(allocate(".CRT$XCA")) const CxxInitializer g_cxxBegin[] = {nullptr};
__declspec(allocate(".CRT$XCZ")) const CxxInitializer g_cxxEnd[] = {nullptr};

// To the optimiser two arrays are never neighbours; the linker makes them so.
template <typename T>
const T* Opaque(const T* position) {
    __asm__("" : "+r"(position));
    return position;
}

} // namespace

bool abi::RunInitializers() {
    for (const CInitializer* entry = Opaque(g_cBegin); entry != Opaque(g_cEnd); ++entry)
        if (*entry != nullptr && (*entry)() != 0) return false;
    for (const CxxInitializer* entry = Opaque(g_cxxBegin); entry != Opaque(g_cxxEnd); ++entry)
        if (*entry != nullptr) (*entry)();
    return true;
}
