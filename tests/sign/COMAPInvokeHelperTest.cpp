// Tests of the automation bridge itself, where the signing operations do not reach.
#include <afxwin.h>
#include "varnoke/COMAPInvokeHelper.h"
#include "tests/sign/FakeServer.h"
#include "tests/support/TempFolder.h"

namespace {

struct Helper : CCOMAPInvokeHelper {
    using CCOMAPInvokeHelper::CreateFromProgID;
    using CCOMAPInvokeHelper::Invoke;
    using CCOMAPInvokeHelper::SelectMethod;
};

TEST(COMAPInvokeHelper, Select_RefusesNamesThatAreTooLongWithoutAsking) {
    const std::wstring longest(1023, L'n'), tooLong(1024, L'n');
    tests::FakeServer server;
    server.m_methods = {{longest, 7}, {tooLong, 8}};
    Helper helper;
    EXPECT_EQ(helper.SelectMethod(longest.c_str()), 0) << "no server yet";
    for (const wchar_t* bad : {L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(helper.CreateFromProgID(bad), 0);
    ASSERT_EQ(helper.CreateFromProgID(server.m_progID.c_str()), 1);
    EXPECT_EQ(helper.SelectMethod(longest.c_str()), 7);
    for (const wchar_t* refused : {tooLong.c_str(), L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(helper.SelectMethod(refused), 0);
    EXPECT_EQ(server.LastSeen(), L"? " + longest);
    EXPECT_EQ(helper.Invoke(nullptr, 0, nullptr), 1) << "the earlier method stays, and no result is needed";
    EXPECT_EQ(server.LastSeen(), L"7()");
}

TEST(COMAPInvokeHelper, Select_LeavesNoMethodBehindAFailure) {
    tests::FakeServer server;
    server.m_methods = {{L"Known", 7}, {L"Default", 0}};
    Helper helper;
    for (const wchar_t* unusable : {L"Unknown", L"Default", L"<new server>"}) {
        ASSERT_EQ(helper.CreateFromProgID(server.m_progID.c_str()), 1);
        EXPECT_EQ(helper.SelectMethod(L"Known"), 7);
        if (unusable[0] == L'<')
            helper.CreateFromProgID(server.m_progID.c_str());
        else
            EXPECT_EQ(helper.SelectMethod(unusable), 0);
        server.m_seen.clear();
        EXPECT_EQ(helper.Invoke(nullptr, 0, nullptr), 0) << tests::ToUtf8(unusable);
        EXPECT_EQ(server.LastSeen(), L"");
    }
}

} // namespace
