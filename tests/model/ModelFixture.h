// What tests of the model configuration and of the sign log have in common.
#pragma once
#include <string_view>
#include <gtest/gtest.h>
#include <windows.h>
#include "tests/support/SettingsFile.h"
#include "tests/support/TempFolder.h"

namespace tests {

// A file that the build puts beside the programs.
inline std::filesystem::path Built(const wchar_t* name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return std::filesystem::path(program).parent_path() / name;
}

// Local services in a folder of their own, loaded into this process, with a ModelConfig.Xml beside them.
struct LocalServices {
    explicit LocalServices(std::string_view modelConfig = ReadBytes(Built(L"samples\\ModelConfig.Xml"))) {
        std::filesystem::copy_file(Built(L"QORLocal.dll"), folder / L"QORLocal.dll");
        WriteBytes(configFile, modelConfig);
        module = LoadLibraryW((folder / L"QORLocal.dll").c_str());
    }
    ~LocalServices() { FreeLibrary(module); }
    LocalServices(const LocalServices&) = delete;

    const TempFolder folder;
    const std::filesystem::path configFile = folder / L"ModelConfig.Xml";
    HMODULE module;
};

template <class Function>
Function ParserFunction(const char* name) {
    FARPROC found = GetProcAddress(LoadLibraryW(L"QORParser.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

inline long LiveModelObjects() {
    return ParserFunction<long (*)()>("qor_LiveObjects")();
}

// Makes the n-th model operation from now on fail; 0 for none.
inline void SetModelFault(int n) {
    ParserFunction<void (*)(int)>("qor_SetFault")(n);
}

// Settings of the test's own; every test must end without model objects.
class ModelFixture : public testing::Test {
protected:
    void TearDown() override {
        SetModelFault(0);
        EXPECT_EQ(LiveModelObjects(), 0);
    }

    SettingsFile m_settings;
};

} // namespace tests
