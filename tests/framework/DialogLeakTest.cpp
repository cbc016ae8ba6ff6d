// Hundreds of dialog runs leave no window, GDI object, kernel handle or memory behind.
#include "tests/framework/ScriptedDialog.h"

#include <afxdisp.h>
#include <gtest/gtest.h>

#include "tests/framework/FakeControl.h"
#include "tests/support/HostWindow.h"
#include "tests/support/MemoryUse.h"
#include "tests/support/ObjectCounts.h"

using tests::CountObjects;
using tests::ObjectCounts;

TEST(DialogLeak, Counts_SeeWhatIsThere) {
    const ObjectCounts before = CountObjects();
    tests::HostWindow host;
    const HGDIOBJ hPen = ::CreatePen(PS_SOLID, 1, RGB(9, 9, 9));
    const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
    const ObjectCounts after = CountObjects();
    ::CloseHandle(hEvent);
    ::DeleteObject(hPen);
    EXPECT_GT(after.m_windows, before.m_windows);
    EXPECT_GT(after.m_gdi, before.m_gdi);
    EXPECT_GT(after.m_kernel, before.m_kernel);
}

TEST(DialogLeak, TwoHundredRuns_LeaveNothing) {
    AfxEnableControlContainer();
    const FakeControlClass registered;
    tests::HostWindow host;
    const auto runBoth = [&] {
        CScriptedDialog plain(IDD_PLAIN, host);
        CComboBox combo;
        plain.m_init = [&](CScriptedDialog& d) { combo.SubclassDlgItem(IDC_COLORS, &d); };
        plain.m_script = [](CScriptedDialog& d) {
            const CClientDC dc(d.GetDlgItem(IDC_NAME));
            d.EndDialog(1);
        };
        EXPECT_EQ(1, plain.DoModal());
        CScriptedDialog controls(IDD_CONTROLS, host);
        controls.m_init = [](CScriptedDialog& d) { d.EndDialog(2); };
        EXPECT_EQ(2, controls.DoModal());
    };
    for (int nRun = 0; nRun < 5; ++nRun) // what the system keeps for good
        runBoth();
    const ObjectCounts before = CountObjects();
    for (int nRun = 0; nRun < 100; ++nRun)
        runBoth();
    const ObjectCounts after = CountObjects();
    EXPECT_EQ(before.m_windows, after.m_windows);
    EXPECT_EQ(before.m_gdi, after.m_gdi);
    EXPECT_EQ(before.m_kernel, after.m_kernel);
    // Only now has the heap grown to what it needs.
    EXPECT_LT(tests::MemoryGrowth(100, runBoth), 32 * 1024);
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}
