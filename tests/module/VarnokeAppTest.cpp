// Tests of the way into the library; it is loaded as a copy beside the one that the test is linked with.
#include <afxwin.h>
#include <objbase.h>
#include <thread>
#include <gtest/gtest.h>
#include "tests/support/SettingsFile.h"
#include "tests/support/TempFolder.h"

namespace {

// Kind of the thread's apartment; -1 without COM.
int Apartment() {
    APTTYPE type;
    APTTYPEQUALIFIER qualifier;
    const bool own = SUCCEEDED(CoGetApartmentType(&type, &qualifier)) && qualifier == APTTYPEQUALIFIER_NONE;
    return own ? type : -1;
}

TEST(VarnokeApp, LoadAndUnload_LeaveTheThreadsComAsItWas) {
    tests::TempFolder folder;
    const auto copy = folder / "VarnokeCopy.dll";
    std::filesystem::copy_file(tests::LibraryFolder() / L"Varnoke.dll", copy);
    for (const bool mta : {false, true, false}) {
        std::thread([&] {
            if (mta) CoInitializeEx(nullptr, COINIT_MULTITHREADED);
            const HMODULE module = LoadLibraryW(copy.c_str());
            EXPECT_NE(module, nullptr) << GetLastError();
            EXPECT_EQ(Apartment(), mta ? APTTYPE_MTA : APTTYPE_STA);
            FreeLibrary(module);
            EXPECT_EQ(GetModuleHandleW(copy.c_str()), nullptr) << "still loaded";
            EXPECT_EQ(Apartment(), mta ? APTTYPE_MTA : -1);
            if (mta) CoUninitialize();
        }).join();
    }
}

} // namespace
