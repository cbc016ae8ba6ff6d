// Damaged input against every reader.
#include "tests/soak/ReaderRun.h"

#include <windows.h>

#include <cstdio>

#include "tests/soak/Damage.h"
#include "tests/soak/Readers.h"
#include "tests/soak/Workplace.h"

namespace soak {

namespace {

constexpr ULONGLONG kLongest = 20000; // ms for one input
constexpr size_t kMayGrow = 4 << 20;  // bytes over all of a reader's inputs: the heap's own unrest

const char* volatile g_reader = "";
volatile uint64_t g_seed = 0;
volatile ULONGLONG g_since = 0;

LONG WINAPI OnCrash(EXCEPTION_POINTERS* fault) {
    Stop("%s, seed %llu: crash %08lx", g_reader, static_cast<unsigned long long>(g_seed),
         fault->ExceptionRecord->ExceptionCode);
}

DWORD WINAPI Watch(void*) {
    for (;;) {
        ::Sleep(1000);
        const ULONGLONG since = g_since;
        if (since && ::GetTickCount64() > since + kLongest) {
            Stop("%s, seed %llu: hangs", g_reader, static_cast<unsigned long long>(g_seed));
        }
    }
}

void Feed(Library& library, const Reader& reader, uint64_t seed) {
    g_seed = seed;
    g_since = ::GetTickCount64();
    reader.read(library, Damaged(reader.sample, seed));
    g_since = 0;
}

} // namespace

void RunReaders(uint64_t inputs, uint64_t firstSeed) {
    ::SetUnhandledExceptionFilter(&OnCrash);
    ::CloseHandle(::CreateThread(nullptr, 0, &Watch, nullptr, 0, nullptr));
    Library library;
    const std::vector<Reader> readers = Readers();
    const uint64_t each = inputs / readers.size() + 1;
    for (const Reader& reader : readers) {
        if (reader.sample.empty()) Stop("%s: there is no sample", reader.name);
        g_reader = reader.name;
        const uint64_t warm = each / 5; // until the heap has what it needs
        for (uint64_t seed = 0; seed < warm; ++seed) {
            Feed(library, reader, firstSeed + seed);
        }
        const size_t before = CommittedBytes();
        for (uint64_t seed = warm; seed < each; ++seed) {
            Feed(library, reader, firstSeed + seed);
        }
        const size_t after = CommittedBytes();
        if (after > before + kMayGrow) Stop("%s: memory grew by %zu bytes", reader.name, after - before);
        std::printf("%s: %llu inputs\n", reader.name, static_cast<unsigned long long>(each));
        std::fflush(stdout);
    }
}

} // namespace soak
