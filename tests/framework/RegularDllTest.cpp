// A regular DLL's application object starts and ends with the DLL, and may refuse to be loaded.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct LoadCase {
    const wchar_t* m_mode;
    bool m_loads;
};

std::wstring Notes() {
    wchar_t notes[64] = {};
    ::GetEnvironmentVariableW(L"REGULAR_DLL_NOTES", notes, _countof(notes));
    return notes;
}

} // namespace

TEST(RegularDll, StartAndEnd_AreCalledOnceEach) {
    for (const LoadCase& load :
         {LoadCase{L"", true}, LoadCase{L"refuse", false}, LoadCase{L"throw", false}}) {
        ::SetEnvironmentVariableW(L"REGULAR_DLL_MODE", load.m_mode);
        ::SetEnvironmentVariableW(L"REGULAR_DLL_NOTES", nullptr);
        const HMODULE hModule = ::LoadLibraryW(L"regular-dll.dll");
        EXPECT_EQ(load.m_loads, hModule != nullptr) << load.m_mode;
        if (hModule != nullptr) {
            EXPECT_EQ(L"init(regular-dll) ", Notes());
            ::FreeLibrary(hModule);
        }
        EXPECT_EQ(L"init(regular-dll) exit ", Notes()) << load.m_mode;
    }
}
