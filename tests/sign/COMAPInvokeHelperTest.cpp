// Tests of the automation bridge itself, where the signing operations do not reach.
#include <afxwin.h>
#include "sign/COMAPInvokeHelper.h"
#include "tests/sign/FakeServer.h"
#include "tests/support/MemoryUse.h"

namespace {

struct Helper : CCOMAPInvokeHelper {
    using CCOMAPInvokeHelper::CreateFromProgID;
    using CCOMAPInvokeHelper::Invoke;
    using CCOMAPInvokeHelper::SelectMethod;
    long Call() { return Invoke(nullptr, 0, nullptr); }
};

class COMAPInvokeHelper : public testing::Test {
protected:
    long Create() { return m_helper.CreateFromProgID(m_server.m_progID.c_str()); }

    tests::FakeServer m_server;
    Helper m_helper;
};

TEST_F(COMAPInvokeHelper, Create_ReplacesTheServerOnlyBySomethingCreated) {
    m_server.m_methods = {{L"M", 5}};
    EXPECT_EQ(m_helper.SelectMethod(L"M"), 0) << "no server yet";
    ASSERT_EQ(Create(), 1);
    ASSERT_EQ(m_helper.SelectMethod(L"M"), 5);
    for (const wchar_t* bad : {L"No.Such.Server", L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(m_helper.CreateFromProgID(bad), 0);
    EXPECT_EQ(m_helper.Call(), 1) << "the old server and its method stay";

    ASSERT_EQ(Create(), 1);
    EXPECT_EQ(m_server.m_objects, 1) << "the old server goes";
    EXPECT_EQ(m_helper.Call(), 0) << "nothing is selected on the new one";
    m_server.m_automation = false;
    EXPECT_EQ(Create(), 0);
    EXPECT_EQ(m_server.m_objects, 0);
}

TEST_F(COMAPInvokeHelper, Select_LimitsNamesAndIdentifiers) {
    const std::wstring longest(1023, L'n'), tooLong(1024, L'n');
    m_server.m_methods = {{longest, 7}, {tooLong, 8}, {L"Default", 0}, {L"Negative", -4}};
    ASSERT_EQ(Create(), 1);
    for (const wchar_t* bad : {L"Default", L"Negative", L"Unknown"}) {
        EXPECT_EQ(m_helper.SelectMethod(longest.c_str()), 7);
        EXPECT_EQ(m_helper.SelectMethod(bad), 0);
        EXPECT_EQ(m_helper.Call(), 0);
        EXPECT_EQ(m_server.LastSeen(), std::wstring(L"? ") + bad) << "nothing may be called";
    }
    EXPECT_EQ(m_helper.SelectMethod(longest.c_str()), 7);
    for (const wchar_t* refused : {tooLong.c_str(), L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(m_helper.SelectMethod(refused), 0);
    EXPECT_EQ(m_server.LastSeen(), L"? " + longest) << "refused without asking the server";
    EXPECT_EQ(m_helper.Call(), 1) << "the earlier method stays selected";
}

TEST_F(COMAPInvokeHelper, Invoke_HandsTheResultOverOrFreesIt) {
    const auto big = [] { return SysAllocStringLen(nullptr, 500000); }; // 1 MB
    HRESULT outcome = S_OK;
    m_server.m_methods = {{L"M", 5}};
    m_server.m_answer = [&](VARIANT& result, EXCEPINFO& exception) {
        result.vt = VT_BSTR;
        result.bstrVal = big();
        if (FAILED(outcome)) exception.bstrDescription = big();
        return outcome;
    };
    ASSERT_EQ(Create(), 1);
    m_helper.SelectMethod(L"M");
    _variant_t result;
    EXPECT_EQ(m_helper.Invoke(nullptr, 0, &result), 1);
    EXPECT_TRUE(result.vt == VT_BSTR && SysStringLen(result.bstrVal) == 500000);
    EXPECT_LT(tests::MemoryGrowth(60, [&] { EXPECT_EQ(m_helper.Call(), 1); }), 15 << 20);
    outcome = DISP_E_EXCEPTION;
    EXPECT_LT(tests::MemoryGrowth(60, [&] { EXPECT_EQ(m_helper.Invoke(nullptr, 0, &result), 0); }), 15 << 20);
    EXPECT_EQ(result.vt, VT_BSTR) << "a failed call leaves the caller's variant alone";
}

} // namespace
