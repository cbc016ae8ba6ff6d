// A signing automation server inside the test program, registered under a ProgID of its own.
#pragma once
#include <afxwin.h>
#include <comdef.h>
#include <functional>
#include <map>
#include <string>
#include <vector>
#include "tests/support/TestClass.h"

namespace tests {

// Class object and record of what its objects saw.
class FakeServer final : public TestClass {
public:
    FakeServer() : FakeServer(NewClassId()) {}
    ~FakeServer();

    std::wstring m_progID = L"VarnokeTest.Server" + std::to_wstring(GetCurrentProcessId());
    bool m_automation = true;                 // false: objects refuse IDispatch
    std::map<std::wstring, DISPID> m_methods; // other names are unknown
    // Answers a call; without it S_OK and the integer 1.
    std::function<HRESULT(VARIANT& result, EXCEPINFO& exception)> m_answer;
    // "? name" per look-up; identifier and arguments in the method's own order, "5(text|1.5)", per call.
    std::vector<std::wstring> m_seen;
    std::wstring LastSeen() const { return m_seen.empty() ? L"" : m_seen.back(); }
    long m_objects = 0; // alive

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override;

private:
    static CLSID NewClassId();
    explicit FakeServer(const CLSID& clsid);
};

} // namespace tests
