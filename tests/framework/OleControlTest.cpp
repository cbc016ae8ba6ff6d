// Dialogs with ActiveX controls: errors of calls, places whose control is missing, and what many runs leave.
#include "tests/framework/ScriptedDialog.h"

#include <afxdisp.h>
#include <gtest/gtest.h>

#include "tests/framework/FakeControl.h"
#include "tests/support/HostWindow.h"
#include "tests/support/ObjectCounts.h"
#include "tests/support/Visible.h"

namespace {

// What the call throws: the status of a COleException, else S_OK.
template <class TCall>
SCODE ThrownStatus(TCall call) {
    try {
        call();
    } catch (COleException* e) {
        const SCODE sc = e->m_sc;
        e->Delete();
        return sc;
    }
    return S_OK;
}

class OleControl : public testing::Test {
protected:
    void SetUp() override { AfxEnableControlContainer(); }

    // Runs the script in the dialog with the control of that id attached.
    void Run(UINT nTemplate, int nID, std::function<void(CWnd&)> script) {
        CScriptedDialog dialog(nTemplate);
        CWnd control;
        dialog.m_script = [&](CScriptedDialog& d) {
            d.EndDialog(1); // whatever the script throws
            CDataExchange dx(&d, FALSE);
            DDX_Control(&dx, nID, control);
            script(control);
        };
        EXPECT_EQ(1, dialog.DoModal());
        EXPECT_EQ(nullptr, control.m_hWnd);
    }
};

} // namespace

#ifndef VARNOKE_MFC_DLL // which doesn't open the dialog then; the subset leaves the rest of it usable
TEST_F(OleControl, Unregistered_LeavesAnEmptyPlace) {
    Run(IDD_UNKNOWN, IDC_UNKNOWN_CONTROL, [](CWnd& control) {
        EXPECT_EQ(OLE_E_BLANK, ThrownStatus([&] { control.SetProperty(FakeName, VT_I4, 1L); }));
        const HWND hDialog = ::GetParent(control);
        CRect place;
        control.GetClientRect(place);
        EXPECT_GT(place.Width(), 50);
        EXPECT_EQ(control.m_hWnd, ::GetNextDlgTabItem(hDialog, ::GetDlgItem(hDialog, IDC_NAME), FALSE))
            << "the tab order is the template's";
        CWnd plain;
        plain.Attach(::GetDlgItem(hDialog, IDC_NAME));
        EXPECT_EQ(OLE_E_BLANK, ThrownStatus([&] { plain.SetProperty(FakeName, VT_I4, 1L); }));
        plain.Detach();
    });
}
#endif

TEST_F(OleControl, TemplateRules_DecideWhatIsMadeAndSeen) {
    const FakeControlClass registered;
    CScriptedDialog dialog(IDD_CONTROLS);
    CWnd control, covered, unlisted;
    dialog.m_script = [&](CScriptedDialog& d) {
        d.EndDialog(1);
        CDataExchange dx(&d, FALSE);
        DDX_Control(&dx, IDC_FAKE_CONTROL, control);
#ifndef VARNOKE_MFC_DLL // there the fake control has no window of its own; the host's pictures show the
                        // preview
        EXPECT_TRUE(tests::CanBeSeen(control));
        DDX_Control(&dx, IDC_COVERED_CONTROL, covered);
        EXPECT_FALSE(tests::CanBeSeen(covered)) << "a group box lies above it";
#endif
        // The initialisation resource leaves it out.
        EXPECT_THROW(DDX_Control(&dx, IDC_UNLISTED_CONTROL, unlisted), CNotSupportedException*);
    };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}

TEST_F(OleControl, Failures_AreExceptions) {
    const FakeControlClass registered;
    Run(IDD_CONTROLS, IDC_FAKE_CONTROL, [](CWnd& control) {
        const auto call = [&](DISPID member) {
            control.InvokeHelper(member, DISPATCH_METHOD, VT_EMPTY, nullptr, nullptr);
        };
        long nNumber = 0;
        EXPECT_EQ(DISP_E_MEMBERNOTFOUND, ThrownStatus([&] { call(99); }));
        EXPECT_EQ(DISP_E_TYPEMISMATCH, ThrownStatus([&] { control.GetProperty(FakeName, VT_I4, &nNumber); }));
        try {
            call(FakeFail);
            ADD_FAILURE() << "no exception";
        } catch (COleDispatchException* e) {
            EXPECT_EQ(1001, e->m_wCode);
            EXPECT_STREQ(L"描述", e->m_strDescription);
            EXPECT_STREQ(L"fake", e->m_strSource);
            e->Delete();
        }
    });
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}

TEST_F(OleControl, ManyRuns_LeaveNothing) {
    const FakeControlClass registered;
    tests::HostWindow host;
    const auto showBoth = [&] {
        CScriptedDialog plain(IDD_PLAIN, host);
        CComboBox combo;
        plain.m_init = [&](CScriptedDialog& d) { combo.SubclassWindow(::GetDlgItem(d, IDC_COLORS)); };
        plain.m_script = [](CScriptedDialog& d) {
            const CClientDC dc(&d);
            d.EndDialog(1);
        };
        EXPECT_EQ(1, plain.DoModal());
        CScriptedDialog controls(IDD_CONTROLS, host);
        controls.m_init = [](CScriptedDialog& d) { d.EndDialog(2); };
        EXPECT_EQ(2, controls.DoModal());
    };
    tests::ExpectNothingLeft(showBoth, 60);
    EXPECT_EQ(0, FakeControlClass::LiveObjects());
}

TEST(ObjectCounts, SeeWhatIsThere) {
    const tests::ObjectCounts before = tests::CountObjects();
    tests::HostWindow host;
    const HGDIOBJ hPen = ::CreatePen(PS_SOLID, 1, RGB(9, 9, 9));
    const HANDLE hEvent = ::CreateEvent(nullptr, FALSE, FALSE, nullptr);
    const tests::ObjectCounts after = tests::CountObjects();
    ::CloseHandle(hEvent);
    ::DeleteObject(hPen);
    EXPECT_GT(after.windows, before.windows);
    EXPECT_GT(after.gdi, before.gdi);
    EXPECT_GT(after.kernel, before.kernel);
}
