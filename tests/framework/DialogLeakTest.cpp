// Hundreds of dialog runs leave no window, GDI object, kernel handle or memory behind.
#include "tests/framework/ScriptedDialog.h"

#include <afxdisp.h>
#include <gtest/gtest.h>

#include "tests/framework/FakeControl.h"
#include "tests/support/HostWindow.h"
#include "tests/support/MemoryUse.h"

namespace {

BOOL CALLBACK CountWindow(HWND, LPARAM pCount) {
    ++*reinterpret_cast<int*>(pCount);
    return TRUE;
}

BOOL CALLBACK CountWithChildren(HWND hWnd, LPARAM pCount) {
    ::EnumChildWindows(hWnd, CountWindow, pCount);
    return CountWindow(hWnd, pCount);
}

int CountWindows() {
    int nCount = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWithChildren, reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

// Wine does not count for GetGuiResources; there an index alone stands for an object in the process's table.
int CountGdiObjects() {
    if (const DWORD dwCount = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(dwCount);
    int nCount = 0;
    for (UINT_PTR n = 1; n <= 0xFFFF; ++n)
        nCount += ::GetObjectType(reinterpret_cast<HGDIOBJ>(n)) != 0;
    return nCount;
}

// Asks for each possible handle, since the count itself is not to be had everywhere.
int CountKernelHandles() {
    int nCount = 0;
    DWORD dwFlags = 0;
    for (UINT_PTR n = 4; n < 0x4000; n += 4)
        nCount += ::GetHandleInformation(reinterpret_cast<HANDLE>(n), &dwFlags);
    return nCount;
}

void RunDialogs(CWnd* pParent) {
    CScriptedDialog plain(IDD_PLAIN, pParent);
    CComboBox combo;
    plain.m_init = [&](CScriptedDialog& d) { combo.SubclassDlgItem(IDC_COLORS, &d); };
    plain.m_script = [](CScriptedDialog& d) {
        const CClientDC dc(d.GetDlgItem(IDC_NAME));
        d.EndDialog(1);
    };
    EXPECT_EQ(1, plain.DoModal());
    CScriptedDialog controls(IDD_CONTROLS, pParent);
    controls.m_init = [](CScriptedDialog& d) { d.EndDialog(2); };
    EXPECT_EQ(2, controls.DoModal());
}

} // namespace

TEST(DialogLeak, Counts_SeeWhatIsThere) {
    const int nWindows = CountWindows(), nGdi = CountGdiObjects(), nKernel = CountKernelHandles();
    tests::HostWindow host;
    const HGDIOBJ hPen = ::CreatePen(PS_SOLID, 1, RGB(9, 9, 9));
    const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
    EXPECT_GT(CountWindows(), nWindows);
    EXPECT_GT(CountGdiObjects(), nGdi);
    EXPECT_GT(CountKernelHandles(), nKernel);
    ::CloseHandle(hEvent);
    ::DeleteObject(hPen);
}

TEST(DialogLeak, TwoHundredRuns_LeaveNothing) {
    AfxEnableControlContainer();
    const FakeControlClass registered;
    tests::HostWindow host;
    for (int nRun = 0; nRun < 5; ++nRun) // what the system keeps for good
        RunDialogs(host);
    const int nWindows = CountWindows(), nGdi = CountGdiObjects(), nKernel = CountKernelHandles();
    for (int nRun = 0; nRun < 100; ++nRun)
        RunDialogs(host);
    EXPECT_EQ(nWindows, CountWindows());
    EXPECT_EQ(nGdi, CountGdiObjects());
    EXPECT_EQ(nKernel, CountKernelHandles());
    // Only now has the heap grown to what it needs.
    EXPECT_LT(tests::MemoryGrowth(100, [&] { RunDialogs(host); }), 32 * 1024);
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}
