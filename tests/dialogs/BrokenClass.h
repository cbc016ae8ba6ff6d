// A control that is not installed.
#pragma once
#include "tests/support/TestClass.h"

namespace tests {

struct BrokenClass final : TestClass {
    using TestClass::TestClass;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, void** object) override {
        *object = nullptr;
        return REGDB_E_CLASSNOTREG;
    }
};

} // namespace tests
